#pragma once

#include <QtWidgets/QGraphicsSceneMouseEvent>

/// A mouse event whose item and scene positions are independent of each other, so that a test sees which one is
/// read.
class SceneEvent : public QGraphicsSceneMouseEvent
{
public:
    SceneEvent(Type type, QPointF itemPos, QPointF scenePos)
        : QGraphicsSceneMouseEvent(type)
    {
        setPos(itemPos);
        setScenePos(scenePos);
    }
};
