#include "panels/foldingsection.h"

#include "look/theme.h"
#include "panels/foldtitle.h"

#include <QtCore/QSettings>
#include <QtGui/QPainter>
#include <QtWidgets/QVBoxLayout>

namespace board {

namespace {

QString keyOf(const QString &name)
{
    return QStringLiteral("panel/open/") + name;
}

} // namespace

FoldingSection::FoldingSection(const QString &title, QWidget *content, QWidget *parent)
    : QWidget(parent)
    , m_title(new FoldTitle(title, this))
    , m_content(content)
{
    auto *column = new QVBoxLayout(this);
    // Below the line above the section.
    column->setContentsMargins(0, mediumGap, 0, 0);
    column->setSpacing(smallGap + 2);
    column->addWidget(m_title);
    column->addWidget(content);
    connect(m_title, &FoldTitle::clicked, this, [this] { setOpen(!m_isOpen); });
    setOpen(true);
}

void FoldingSection::remember(const QString &name, bool isOpenAtFirst)
{
    setOpen(QSettings().value(keyOf(name), isOpenAtFirst).toBool());
    m_name = name;
}

void FoldingSection::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(QRect(0, 0, width(), 1), themeColors().border);
}

void FoldingSection::setOpen(bool open)
{
    m_isOpen = open;
    m_title->setOpen(open);
    m_content->setVisible(open);
    if (!m_name.isEmpty())
        QSettings().setValue(keyOf(m_name), open);
}

} // namespace board
