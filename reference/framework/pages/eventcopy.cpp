#include <pages/eventcopy.h>

#include <QtWidgets/QGraphicsItem>
#include <QtWidgets/QGraphicsSceneMouseEvent>

void copyMouseEvent(const QGraphicsSceneMouseEvent &event, const QGraphicsItem &item, const QPointF &offset,
                    QGraphicsSceneMouseEvent &copy)
{
    const QPointF pressed = event.buttonDownScenePos(Qt::LeftButton) + offset;
    copy.setWidget(event.widget());
    copy.setScenePos(event.scenePos() + offset);
    copy.setPos(item.mapFromScene(event.scenePos() + offset));
    copy.setLastScenePos(event.lastScenePos() + offset);
    copy.setLastPos(item.mapFromScene(event.lastScenePos() + offset));
    copy.setScreenPos(event.screenPos());
    copy.setLastScreenPos(event.lastScreenPos());
    copy.setButtonDownScenePos(Qt::LeftButton, pressed);
    copy.setButtonDownPos(Qt::LeftButton, item.mapFromScene(pressed));
    copy.setButtonDownScreenPos(Qt::LeftButton, event.buttonDownScreenPos(Qt::LeftButton));
    copy.setButton(event.button());
    copy.setButtons(event.buttons());
    copy.setModifiers(event.modifiers());
    copy.setSource(event.source());
    copy.setFlags(event.flags());
    copy.setAccepted(false);
}
