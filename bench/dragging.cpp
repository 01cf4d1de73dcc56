#include "dragging.h"

#include <pagehost/objectregistry.h>

#include <QtCore/QEvent>

namespace {

/// A point on one of the object's control points; a null point when it has none.
QPointF findControlPoint(CBaseObject *object)
{
    const QRectF rect = object->getClientRect();
    for (double y = 0; y < rect.height(); y += 2) {
        for (double x = 0; x < rect.width(); x += 2) {
            CObjAction::ACT_Def action = CObjAction::ACT_Move;
            const QPointF pos(x, y);
            if (object->CheckHitTestHandlers(object->mapToScene(pos), action) && action == CObjAction::ACT_Move)
                return pos;
        }
    }
    return {};
}

} // namespace

void Dragged::moveBy(double distance) const
{
    sendMouse(object.get(), QEvent::GraphicsSceneMouseMove, grip + QPointF(distance, distance));
}

QByteArray Dragged::look() const
{
    return shapeRegistry().dataOf(object.get(), QStringLiteral("image/svg+xml"));
}

Dragged beginDrag(const QString &kindId, int side, const pagehost::ObjectRegistry &registry)
{
    Dragged dragged{makeShape(kindId, QSizeF(side, side), registry), {}};
    dragged.object->setAllAttributes({{QStringLiteral("doc_state_edit"), true}}, false);
    dragged.grip = findControlPoint(dragged.object.get());
    sendMouse(dragged.object.get(), QEvent::GraphicsSceneMousePress, dragged.grip);
    return dragged;
}
