#include "window/shelfbutton.h"

#include "look/theme.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace board {

namespace {

constexpr int usualSide = 28;
constexpr double colorRadius = 9;
constexpr double ringRadius = 13;
constexpr double ringWidth = 2;
/// Lighter ones can't be told from the shelf.
constexpr int lightestWithoutEdge = 240;

} // namespace

ShelfButton::ShelfButton(const QColor &color, const QString &name, QWidget *parent)
    : QToolButton(parent)
    , m_color(color)
{
    describe(name);
}

ShelfButton::ShelfButton(double thickness, const QString &name, QWidget *parent)
    : QToolButton(parent)
    , m_thickness(thickness)
{
    describe(name);
}

void ShelfButton::describe(const QString &name)
{
    setSide(usualSide);
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    setToolTip(name);
    setAccessibleName(name);
}

void ShelfButton::setSide(int side)
{
    setFixedSize(side, side);
}

void ShelfButton::setStroke(const QColor &color, double thickness)
{
    m_strokeColor = color;
    m_thickness = thickness;
    update();
}

void ShelfButton::setLetter(int height)
{
    m_letter = height;
    update();
}

void ShelfButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const ThemeColors colors = themeColors();
    if (hasFocus() || underMouse()) {
        painter.setPen(hasFocus() ? QPen(colors.accent, ringWidth) : QPen(Qt::NoPen));
        painter.setBrush(underMouse() ? colors.hover : QColor(Qt::transparent));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), buttonRadius, buttonRadius);
    }
    m_color.isValid() ? paintColor(&painter) : paintChoice(&painter);
}

void ShelfButton::paintColor(QPainter *painter) const
{
    const QPointF middle = QRectF(rect()).center();
    const double scale = width() / double(usualSide);
    const bool needsEdge = m_color.lightness() > lightestWithoutEdge;
    painter->setPen(needsEdge ? QPen(themeColors().control, 1) : QPen(Qt::NoPen));
    painter->setBrush(m_color);
    painter->drawEllipse(middle, colorRadius * scale, colorRadius * scale);
    if (!isChecked())
        return;
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(themeColors().accent, ringWidth));
    painter->drawEllipse(middle, ringRadius * scale, ringRadius * scale);
}

void ShelfButton::paintChoice(QPainter *painter) const
{
    const ThemeColors colors = themeColors();
    if (isChecked()) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(colors.soft);
        painter->drawRoundedRect(rect(), buttonRadius, buttonRadius);
    }
    painter->scale(width() / double(usualSide), height() / double(usualSide));
    const QColor usual = isChecked() ? colors.accent : colors.text;
    m_letter > 0 ? paintLetter(painter, usual) : paintStroke(painter, usual);
}

void ShelfButton::paintStroke(QPainter *painter, const QColor &usual) const
{
    QPainterPath wave(QPointF(7, 17));
    wave.cubicTo(11, 6, 14, 10, 14, 14);
    wave.cubicTo(14, 18, 17, 22, 21, 11);
    const QColor color = m_strokeColor.isValid() ? m_strokeColor : usual;
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(color, m_thickness, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(wave);
}

void ShelfButton::paintLetter(QPainter *painter, const QColor &color) const
{
    QFont letters = font();
    letters.setPixelSize(m_letter);
    painter->setFont(letters);
    painter->setPen(color);
    painter->drawText(QRect(0, 0, usualSide, usualSide), Qt::AlignCenter, QStringLiteral("A"));
}

} // namespace board
