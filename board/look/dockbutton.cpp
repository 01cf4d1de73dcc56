#include "look/dockbutton.h"

#include "look/theme.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>

namespace board {

namespace {

constexpr int usualSide = 40;
constexpr int cornerMark = 4;
/// From a mark to the button's edges.
constexpr double markInset = 4.5;
constexpr int lockSide = 11;
constexpr int lockInset = 3;
constexpr double focusWidth = 2;

QColor backgroundOf(const DockButton &button)
{
    const ThemeColors colors = themeColors(&button);
    if (button.isChecked() && !button.isGrey())
        return button.isSwitch() ? colors.soft : colors.accent;
    if (button.isDown())
        return colors.soft;
    return !button.isGrey() && button.underMouse() ? colors.hover : QColor(Qt::transparent);
}

} // namespace

DockButton::DockButton(QWidget *parent)
    : QToolButton(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setPopupMode(QToolButton::InstantPopup);
}

void DockButton::setOpensMore(bool opens)
{
    m_opensMore = opens;
    update();
}

void DockButton::setPictureSide(int side)
{
    m_pictureSide = side;
    update();
}

void DockButton::setGrey(bool grey)
{
    m_grey = grey;
    update();
}

void DockButton::setKept(bool kept)
{
    m_kept = kept;
    update();
}

QSize DockButton::sizeHint() const
{
    return {usualSide, usualSide};
}

void DockButton::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || event->isAutoRepeat())
        return QToolButton::keyPressEvent(event);
    event->accept();
    click();
}

void DockButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(backgroundOf(*this));
    painter.drawRoundedRect(rect(), buttonRadius, buttonRadius);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(themeColors(this).accent, focusWidth));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), buttonRadius, buttonRadius);
    }
    const bool isOn = isChecked() && !isGrey();
    const bool isFilled = isOn && !m_isSwitch;
    const QPalette::ColorRole ofSwitch = isOn ? QPalette::Highlight : QPalette::ButtonText;
    const QPalette::ColorRole role = isFilled ? QPalette::HighlightedText : ofSwitch;
    const QPalette::ColorGroup group = isGrey() ? QPalette::Disabled : QPalette::Active;
    QRect picture(0, 0, m_pictureSide, m_pictureSide);
    picture.moveCenter(rect().center());
    paintIcon(&painter, picture, m_picture, palette().color(group, role));
    paintMarks(&painter, isFilled ? QPalette::HighlightedText : QPalette::PlaceholderText);
}

void DockButton::paintMarks(QPainter *painter, QPalette::ColorRole role) const
{
    // At the end of lines.
    const bool isMirrored = isRightToLeft();
    const QPointF corner(isMirrored ? markInset : width() - markInset, height() - markInset);
    const QPointF inwards(isMirrored ? -cornerMark : cornerMark, 0);
    if (m_opensMore) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(palette().color(role));
        painter->drawPolygon(QPolygonF({corner, corner - QPointF(0, cornerMark), corner - inwards}));
    }
    if (m_kept)
        paintIcon(painter, {isMirrored ? lockInset : width() - lockSide - lockInset, lockInset, lockSide, lockSide},
                  Icon::Lock, palette().color(role));
}

} // namespace board
