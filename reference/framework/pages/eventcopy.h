#pragma once

#include <QtCore/QPointF>

class QGraphicsItem;
class QGraphicsSceneMouseEvent;

/// Makes `copy` the event as it would reach `item` if the mouse were `offset` (scene units) away.
void copyMouseEvent(const QGraphicsSceneMouseEvent &event, const QGraphicsItem &item, const QPointF &offset,
                    QGraphicsSceneMouseEvent &copy);
