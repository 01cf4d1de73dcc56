#include "window/menufield.h"

#include "look/theme.h"

#include <QtGui/QPainter>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStyle>

namespace board {

namespace {

/// As fields of the panel look, which a style sheet of buttons doesn't know.
constexpr double radius = 4;
constexpr int startGap = 8;
/// With the arrow in its middle.
constexpr int arrowRoom = 22;
constexpr QSizeF arrowSize(7, 3.5);
constexpr double arrowPen = 1.75;

} // namespace

MenuField::MenuField(QWidget *parent)
    : QToolButton(parent)
{
    setPopupMode(InstantPopup);
}

void MenuField::setValue(const QString &value)
{
    m_value = value;
    // The text is cut, and nothing else tells readers.
    setAccessibleDescription(value);
    cutValue();
}

QRect MenuField::textPlace() const
{
    return QStyle::visualRect(layoutDirection(), rect(), rect().adjusted(startGap, 0, -arrowRoom, 0));
}

void MenuField::cutValue()
{
    setText(fontMetrics().elidedText(m_value, Qt::ElideRight, textPlace().width()));
}

void MenuField::resizeEvent(QResizeEvent *event)
{
    QToolButton::resizeEvent(event);
    cutValue();
}

void MenuField::paintEvent(QPaintEvent *)
{
    const ThemeColors colors = themeColors();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double edge = edgeWidth();
    painter.setPen(QPen(colors.control, edge));
    painter.setBrush(isDown() ? colors.soft : underMouse() ? colors.hover : colors.field);
    painter.drawRoundedRect(QRectF(rect()).adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2), radius, radius);
    painter.setPen(colors.text);
    painter.drawText(textPlace(), QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter),
                     text());
    const QRect end(width() - arrowRoom, 0, arrowRoom, height());
    const QPointF middle = QRectF(QStyle::visualRect(layoutDirection(), rect(), end)).center();
    const QPointF side(arrowSize.width() / 2, 0);
    const QPointF down(0, arrowSize.height() / 2);
    painter.setPen(QPen(colors.text, arrowPen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({middle - side - down, middle + down, middle + side - down}));
}

} // namespace board
