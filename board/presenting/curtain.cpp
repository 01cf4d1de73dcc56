#include "presenting/curtain.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

namespace board {

namespace {

constexpr QRgb curtainColor = 0xff16191e;
constexpr QRgb gripColor = 0xff7f8a99;
/// Logical pixels.
constexpr int gripReach = 24;
constexpr int gripLength = 48;
constexpr int gripThickness = 4;
constexpr int gripInset = 10;
/// A part that is narrower than this has been dragged away.
constexpr double narrowest = 0.03;

} // namespace

Curtain::Curtain(QWidget *covered)
    : QWidget(covered)
{
    setMouseTracking(true);
    covered->installEventFilter(this);
    hide();
}

void Curtain::setDrawn(bool drawn)
{
    m_part = {0, 0, 1, 1};
    layOut();
    setVisible(drawn);
    raise();
    Q_EMIT changed();
}

void Curtain::setPart(const QRectF &part)
{
    if (part.width() < narrowest || part.height() < narrowest)
        return setDrawn(false);
    m_part = part;
    layOut();
    Q_EMIT changed();
}

void Curtain::layOut()
{
    const QSizeF size = parentWidget()->size();
    setGeometry(QRectF(m_part.x() * size.width(), m_part.y() * size.height(), m_part.width() * size.width(),
                       m_part.height() * size.height())
                    .toAlignedRect());
}

bool Curtain::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        layOut();
    return false;
}

/// A view that scrolls takes what lies on it along.
void Curtain::moveEvent(QMoveEvent *)
{
    layOut();
}

void Curtain::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(curtainColor));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(gripColor), gripThickness, Qt::SolidLine, Qt::RoundCap));
    const QPoint middle = rect().center();
    const int half = gripLength / 2;
    for (const int x : {gripInset, width() - gripInset})
        painter.drawLine(x, middle.y() - half, x, middle.y() + half);
    for (const int y : {gripInset, height() - gripInset})
        painter.drawLine(middle.x() - half, y, middle.x() + half, y);
}

Qt::Edges Curtain::sidesAt(const QPoint &pos) const
{
    Qt::Edges sides;
    if (pos.x() < gripReach)
        sides |= Qt::LeftEdge;
    else if (pos.x() >= width() - gripReach)
        sides |= Qt::RightEdge;
    if (pos.y() < gripReach)
        sides |= Qt::TopEdge;
    else if (pos.y() >= height() - gripReach)
        sides |= Qt::BottomEdge;
    return sides;
}

void Curtain::mousePressEvent(QMouseEvent *event)
{
    m_dragged = sidesAt(event->pos());
}

void Curtain::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_dragged) {
        setCursor(sidesAt(event->pos()) ? Qt::SizeAllCursor : Qt::ArrowCursor);
        return;
    }
    const QSizeF size = parentWidget()->size();
    const QPoint at = mapToParent(event->pos());
    const double x = qBound(0.0, at.x() / size.width(), 1.0);
    const double y = qBound(0.0, at.y() / size.height(), 1.0);
    QRectF part = m_part;
    if (m_dragged & Qt::LeftEdge)
        part.setLeft(qMin(x, part.right()));
    if (m_dragged & Qt::RightEdge)
        part.setRight(qMax(x, part.left()));
    if (m_dragged & Qt::TopEdge)
        part.setTop(qMin(y, part.bottom()));
    if (m_dragged & Qt::BottomEdge)
        part.setBottom(qMax(y, part.top()));
    m_part = part;
    layOut();
    Q_EMIT changed();
}

/// Only now, so that a drag too far can still be taken back.
void Curtain::mouseReleaseEvent(QMouseEvent *)
{
    m_dragged = {};
    setPart(m_part);
}

} // namespace board
