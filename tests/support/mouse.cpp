#include <support/mouse.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <QtWidgets/QGraphicsSceneMouseEvent>

namespace support {

namespace {

class LeftButtonEvent : public QGraphicsSceneMouseEvent
{
public:
    LeftButtonEvent(Type type, QPointF itemPos, QPointF scenePos)
        : QGraphicsSceneMouseEvent(type)
    {
        setPos(itemPos);
        setScenePos(scenePos);
        setButton(type == GraphicsSceneMouseMove ? Qt::NoButton : Qt::LeftButton);
        setButtons(type == GraphicsSceneMouseRelease ? Qt::NoButton : Qt::LeftButton);
    }
};

LeftButtonEvent eventFor(CSVGObj &object, QEvent::Type type, QPointF pos)
{
    return LeftButtonEvent(type, pos, object.mapToScene(pos));
}

} // namespace

void press(CSVGObj &object, QPointF pos)
{
    LeftButtonEvent event = eventFor(object, QEvent::GraphicsSceneMousePress, pos);
    object.mousePressEvent(&event);
}

void moveTo(CSVGObj &object, QPointF pos)
{
    LeftButtonEvent event = eventFor(object, QEvent::GraphicsSceneMouseMove, pos);
    object.mouseMoveEvent(&event);
}

void release(CSVGObj &object, QPointF pos)
{
    LeftButtonEvent event = eventFor(object, QEvent::GraphicsSceneMouseRelease, pos);
    object.mouseReleaseEvent(&event);
}

void drag(CSVGObj &object, QPointF from, QPointF to)
{
    press(object, from);
    moveTo(object, to);
    release(object, to);
}

bool press(CSVGBase &shape, QPointF pos)
{
    LeftButtonEvent event(QEvent::GraphicsSceneMousePress, pos, pos);
    return shape.mousePressEvent(&event);
}

bool moveTo(CSVGBase &shape, QPointF pos)
{
    LeftButtonEvent event(QEvent::GraphicsSceneMouseMove, pos, pos);
    return shape.mouseMoveEvent(&event);
}

bool release(CSVGBase &shape, QPointF pos)
{
    LeftButtonEvent event(QEvent::GraphicsSceneMouseRelease, pos, pos);
    return shape.mouseReleaseEvent(&event);
}

bool drag(CSVGBase &shape, QPointF from, QPointF to)
{
    press(shape, from);
    moveTo(shape, to);
    return release(shape, to);
}

} // namespace support
