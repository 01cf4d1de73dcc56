#include "window/besideplace.h"

#include "look/theme.h"

namespace board {

QRect placeBeside(const QRect &anchor, Qt::Edge edge, const QSize &size, const QRect &room)
{
    QPoint pos = anchor.topLeft();
    switch (edge) {
    case Qt::LeftEdge:
        pos.setX(anchor.right() + 1 + mediumGap);
        break;
    case Qt::RightEdge:
        pos.setX(anchor.left() - mediumGap - size.width());
        break;
    case Qt::TopEdge:
        pos.setY(anchor.bottom() + 1 + mediumGap);
        break;
    case Qt::BottomEdge:
        pos.setY(anchor.top() - mediumGap - size.height());
        break;
    }
    const QSize shown = size.boundedTo(room.size());
    return {QPoint(qBound(room.left(), pos.x(), room.right() + 1 - shown.width()),
                   qBound(room.top(), pos.y(), room.bottom() + 1 - shown.height())),
            shown};
}

} // namespace board
