#include "window/barbutton.h"

#include "look/theme.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionToolButton>
#include <QtWidgets/QStylePainter>

namespace board {

namespace {

/// Beside the picture and the text.
constexpr int sideGap = 12;
constexpr int betweenGap = 8;

} // namespace

void BarButton::setPrimary(bool primary)
{
    m_isPrimary = primary;
    setProperty("isPrimary", primary);
    // Its size may have been asked for, and the style settled, before.
    style()->unpolish(this);
    style()->polish(this);
}

bool BarButton::showsText() const
{
    return toolButtonStyle() == Qt::ToolButtonTextBesideIcon && !text().isEmpty();
}

QSize BarButton::sizeHint() const
{
    if (!showsText())
        return QToolButton::sizeHint();
    const QSize letters = fontMetrics().size(Qt::TextShowMnemonic, text());
    return {2 * sideGap + iconSize().width() + betweenGap + letters.width(), QToolButton::sizeHint().height()};
}

/// The style draws text and picture side by side without a gap, and not in the middle.
void BarButton::paintEvent(QPaintEvent *event)
{
    if (!showsText())
        return QToolButton::paintEvent(event);
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = QIcon();
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    const QSize letters = fontMetrics().size(Qt::TextShowMnemonic, text());
    const int all = iconSize().width() + betweenGap + letters.width();
    const QRect picture(QPoint((width() - all) / 2, (height() - iconSize().height()) / 2), iconSize());
    const QRect words(picture.right() + 1 + betweenGap, 0, letters.width(), height());
    icon().paint(&painter, QStyle::visualRect(layoutDirection(), rect(), picture), Qt::AlignCenter,
                 isEnabled() ? QIcon::Normal : QIcon::Disabled);
    const QPalette::ColorRole role = m_isPrimary ? QPalette::HighlightedText : QPalette::ButtonText;
    painter.drawItemText(QStyle::visualRect(layoutDirection(), rect(), words),
                         Qt::AlignCenter | Qt::TextShowMnemonic, QApplication::palette(), isEnabled(), text(),
                         role);
}

} // namespace board
