// Draws a tag by dragging, moves its hole by the control point, and takes that back.

#include "tag.h"

#include <framework/cundoredo.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QGraphicsScene>
#include <QtWidgets/QGraphicsSceneMouseEvent>
#include <QtWidgets/QUndoStack>

#include <cstdio>

namespace {

void send(TagObject &object, QEvent::Type type, QPointF pos)
{
    QGraphicsSceneMouseEvent event(type);
    event.setPos(pos);
    event.setScenePos(object.mapToScene(pos));
    event.setButton(Qt::LeftButton);
    event.setButtons(type == QEvent::GraphicsSceneMouseRelease ? Qt::NoButton : Qt::LeftButton);
    if (type == QEvent::GraphicsSceneMousePress)
        object.mousePressEvent(&event);
    else if (type == QEvent::GraphicsSceneMouseMove)
        object.mouseMoveEvent(&event);
    else
        object.mouseReleaseEvent(&event);
}

void drag(TagObject &object, QPointF from, QPointF to)
{
    send(object, QEvent::GraphicsSceneMousePress, from);
    send(object, QEvent::GraphicsSceneMouseMove, to);
    send(object, QEvent::GraphicsSceneMouseRelease, to);
}

bool expect(const char *what, QPointF actual, QPointF expected)
{
    if (actual == expected)
        return true;
    std::printf("%s: (%g, %g) instead of (%g, %g)\n", what, actual.x(), actual.y(), expected.x(), expected.y());
    return false;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QGraphicsScene scene;
    auto *object = new TagObject;
    scene.addItem(object);

    // Twice as large as the template: one document unit is two units of the page.
    drag(*object, QPointF(0, 0), QPointF(200, 100));
    const QRectF frame = object->getClientRect();
    bool good = expect("size", QPointF(frame.width(), frame.height()), QPointF(200, 100));
    good = expect("hole at first", object->tag()->hole(), QPointF(26, 25)) && good;

    object->setSelected(true);
    drag(*object, QPointF(52, 50), QPointF(112, 50));
    good = expect("hole after the drag", object->tag()->hole(), QPointF(56, 25)) && good;

    CUndoRedo::GetInstance()->stack()->undo();
    good = expect("hole after undo", object->tag()->hole(), QPointF(26, 25)) && good;
    CUndoRedo::GetInstance()->stack()->redo();
    good = expect("hole after redo", object->tag()->hole(), QPointF(56, 25)) && good;

    CUndoRedo::GetInstance()->stack()->clear();
    if (good)
        std::printf("all as expected\n");
    return good ? 0 : 1;
}
