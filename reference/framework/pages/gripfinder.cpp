#include <pages/gripfinder.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/selection.h>

#include <host/geometry.h>
#include <host/handlelayout.h>
#include <pages/framedrag.h>

#include <cmath>

namespace pagehost {

namespace {

/// Distance by which fingers miss a control point.
constexpr double nearMissPixels = 8;
constexpr int probeDirections = 8;
constexpr int probeRings = 2;
/// Above this number of selected objects only exact hits count: searching around each would slow down hovering.
constexpr int mostProbedObjects = 16;

Grip askObject(CBaseObject *object, const QPointF &scenePos)
{
    CObjAction::ACT_Def action = CObjAction::ACT_None;
    if (object->isLocked() || !object->CheckHitTestHandlers(scenePos, action))
        return {};
    return {action == CObjAction::ACT_None ? Grip::ControlPoint : Grip::Handle, object, action, {}};
}

/// An object accepts a press on its control point only inside its client rectangle, but the point's margin extends
/// beyond it.
QPointF offsetIntoObject(CBaseObject *object, const QPointF &scenePos)
{
    const QRectF rect = object->getClientRect();
    const QPointF pos = object->mapFromScene(scenePos);
    const QPointF inside(qBound(rect.left(), pos.x(), rect.right()), qBound(rect.top(), pos.y(), rect.bottom()));
    return inside == pos ? QPointF() : object->mapToScene(inside) - scenePos;
}

Grip controlPointGrip(CBaseObject *object, const QPointF &scenePos, const QPointF &probeOffset)
{
    Grip grip = askObject(object, scenePos + probeOffset);
    if (grip.kind != Grip::ControlPoint)
        return {};
    const QPointF inward = offsetIntoObject(object, scenePos + probeOffset);
    const bool inwardHits = askObject(object, scenePos + probeOffset + inward).kind == Grip::ControlPoint;
    grip.offset = inwardHits ? probeOffset + inward : probeOffset;
    return grip;
}

QPointF probe(int ring, int direction, double zoom)
{
    const double radius = nearMissPixels * (ring + 1) / probeRings / zoom;
    const double angle = direction * 2 * 3.14159265358979323846 / probeDirections;
    return {radius * std::cos(angle), radius * std::sin(angle)};
}

Grip nearbyControlPoint(CBaseObject *object, const QPointF &scenePos)
{
    const double zoom = object->getCurZoomRate();
    for (int ring = 0; ring < probeRings; ++ring) {
        for (int direction = 0; direction < probeDirections; ++direction) {
            const Grip grip = controlPointGrip(object, scenePos, probe(ring, direction, zoom));
            if (grip.object)
                return grip;
        }
    }
    return {};
}

Grip exactGrip(CBaseObject *object, const QPointF &scenePos)
{
    const Grip grip = askObject(object, scenePos);
    return grip.kind == Grip::ControlPoint ? controlPointGrip(object, scenePos, {}) : grip;
}

/// The objects there that are not locked, the topmost first: clicks pass through the others.
QVector<CBaseObject *> freeObjectsAt(const Page &page, const QPointF &scenePos)
{
    QVector<CBaseObject *> objects;
    const QList<QGraphicsItem *> items = page.scene()->items(scenePos);
    for (QGraphicsItem *item : items) {
        auto *object = dynamic_cast<CBaseObject *>(item);
        if (object && object->GetPage() == &page && !object->isLocked())
            objects.append(object);
    }
    return objects;
}

CBaseObject *selectedAround(const QVector<CBaseObject *> &selected, const QPointF &scenePos)
{
    for (auto object = selected.rbegin(); object != selected.rend(); ++object)
        if (!(*object)->isLocked() && (*object)->getClientRect().contains((*object)->mapFromScene(scenePos)))
            return *object;
    return nullptr;
}

Grip handleOfFrame(const Page &page, const QPointF &scenePos)
{
    const QVector<CBaseObject *> framed = framedObjects(page);
    if (framed.isEmpty())
        return {};
    const HandleLayout layout(boundsOf(framed), framed.last()->getCurZoomRate());
    const CObjAction::ACT_Def handle = layout.hit(scenePos, frameHandles());
    return handle == CObjAction::ACT_None ? Grip() : Grip{Grip::FrameHandle, framed.last(), handle, {}};
}

QCursor resizeCursor(const Grip &grip)
{
    const double degrees = grip.kind == Grip::FrameHandle ? 0 : grip.object->rotation();
    const QPointF towards = rotated(HandleLayout::side(grip.action), degrees);
    const double direction = std::atan2(towards.y(), towards.x()) * 180 / 3.14159265358979323846;
    const int eighth = int(std::lround(normalizedDegrees(direction) / 45)) % 4;
    static constexpr Qt::CursorShape shapes[] = {Qt::SizeHorCursor, Qt::SizeFDiagCursor, Qt::SizeVerCursor,
                                                 Qt::SizeBDiagCursor};
    return shapes[eighth];
}

} // namespace

Grip findGrip(const Page &page, const QPointF &scenePos)
{
    const QVector<CBaseObject *> selected = page.selectedObjects();
    for (auto object = selected.rbegin(); object != selected.rend(); ++object) {
        const Grip grip = exactGrip(*object, scenePos);
        if (grip.object)
            return grip;
    }
    const Grip frameGrip = handleOfFrame(page, scenePos);
    if (frameGrip.object)
        return frameGrip;
    if (selected.size() <= mostProbedObjects) {
        for (auto object = selected.rbegin(); object != selected.rend(); ++object) {
            const Grip grip = nearbyControlPoint(*object, scenePos);
            if (grip.object)
                return grip;
        }
    }
    CBaseObject *object = freeObjectsAt(page, scenePos).value(0);
    if (!object)
        object = selectedAround(selected, scenePos);
    return object ? Grip{Grip::Body, object, CObjAction::ACT_Move, {}} : Grip();
}

ObjectsBelow findBelow(const Page &page, const QPointF &scenePos)
{
    ObjectsBelow below;
    QVector<QVector<CBaseObject *>> units;
    int place = 0; // of the selected one
    const QVector<CBaseObject *> objects = freeObjectsAt(page, scenePos);
    for (CBaseObject *object : objects) {
        const QVector<CBaseObject *> unit = page.unitOf(object);
        if (!units.contains(unit))
            units.append(unit);
        if (below.selected || !object->isSelected())
            continue;
        below.selected = object;
        place = units.indexOf(unit);
    }
    if (!below.selected || units.size() < 2)
        return {};
    below.next = units.at((place + 1) % units.size());
    return below;
}

QCursor cursorFor(const Grip &grip, bool pressed)
{
    switch (grip.kind) {
    case Grip::Nothing:
        return Qt::ArrowCursor;
    case Grip::ControlPoint:
        return Qt::CrossCursor;
    case Grip::Body:
        return Qt::SizeAllCursor;
    case Grip::Handle:
    case Grip::FrameHandle:
        break;
    }
    if (HandleLayout::isResize(grip.action))
        return resizeCursor(grip);
    if (grip.action == CObjAction::ACT_Rotate)
        return pressed ? Qt::ClosedHandCursor : Qt::OpenHandCursor;
    return Qt::PointingHandCursor;
}

} // namespace pagehost
