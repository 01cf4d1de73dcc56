#include "panels/fields/captionedrow.h"

#include "look/linestart.h"
#include "look/sizes.h"
#include "look/theme.h"

#include <QtCore/QEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>

namespace board {

namespace {

/// Of the column of captions, logical pixels.
constexpr int captionWidth = 72;

} // namespace

CaptionedRow::CaptionedRow(const QString &caption, QWidget *field, QWidget *parent)
    : QWidget(parent)
    , m_layout(new QBoxLayout(QBoxLayout::LeftToRight, this))
    , m_caption(new QLabel(caption, this))
{
    m_caption->setForegroundRole(QPalette::PlaceholderText);
    m_caption->setTextFormat(Qt::PlainText);
    m_caption->setAlignment(lineStart() | Qt::AlignVCenter);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addWidget(m_caption);
    m_layout->addWidget(field, 1);
    arrange();
}

void CaptionedRow::putCaptionAbove()
{
    m_isAbove = true;
    arrange();
}

void CaptionedRow::arrange()
{
    // Of the caption in one line.
    m_caption->setWordWrap(false);
    const bool isBeside = !m_isAbove && m_caption->sizeHint().width() <= captionWidth;
    m_layout->setDirection(isBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_layout->setSpacing(isBeside ? mediumGap : smallGap);
    // Beside the first line of fields that have several.
    m_layout->setAlignment(m_caption, isBeside ? Qt::AlignTop : Qt::Alignment());
    m_caption->setWordWrap(!isBeside);
    m_caption->setMinimumSize(isBeside ? captionWidth : 0, isBeside ? sizes().field : 0);
    m_caption->setMaximumWidth(isBeside ? captionWidth : QWIDGETSIZE_MAX);
}

void CaptionedRow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        arrange();
}

} // namespace board
