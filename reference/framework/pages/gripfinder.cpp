#include <pages/gripfinder.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/selection.h>
#include <pagehost/specialproperty.h>
#include <pagehost/writing.h>

#include <host/controlpointplaces.h>
#include <host/geometry.h>
#include <host/shownhandles.h>
#include <pages/framedrag.h>

#include <QtCore/QDataStream>
#include <QtCore/QLineF>
#include <QtGui/QPainterPath>

#include <algorithm>
#include <cmath>

namespace pagehost {

namespace {

/// Objects that don't tell of their control points answer this near to one, about; the rest is searched, pixels.
constexpr double ownReachPixels = 4;
constexpr int probeDirections = 8;
constexpr int probeRings = 2;
/// Above this number of selected objects only exact hits count: searching around each would slow down hovering.
constexpr int mostProbedObjects = 16;
/// Distances that differ by less are equal, pixels.
constexpr double tie = 1e-6;
constexpr int rankOfPoints = 0;

/// A grip within the reach of the pointer.
struct Candidate
{
    Grip grip;
    double distance = 0; ///< pixels
    int rank = 0;        ///< of equally near ones, the lower rank is taken
};

/// The nearest candidate so far.
void take(Candidate &best, const Candidate &other)
{
    if (!other.grip.object)
        return;
    const bool isEqual = std::abs(other.distance - best.distance) < tie;
    const bool isBetter = isEqual ? other.rank < best.rank : other.distance < best.distance;
    if (!best.grip.object || isBetter)
        best = other;
}

Grip askObject(CBaseObject *object, const QPointF &scenePos)
{
    CObjAction::ACT_Def action = CObjAction::ACT_None;
    if (object->isLocked() || !object->CheckHitTestHandlers(scenePos, action))
        return {};
    return {action == CObjAction::ACT_None ? Grip::ControlPoint : Grip::Handle, object, action, {}, -1};
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

QPointF probe(int ring, int direction, double radius)
{
    const double angle = direction * 2 * 3.14159265358979323846 / probeDirections;
    return QPointF(std::cos(angle), std::sin(angle)) * (radius * (ring + 1) / probeRings);
}

/// Of an object that doesn't tell of its points.
Candidate searchedPoint(CBaseObject *object, const QPointF &scenePos, double reach)
{
    const double zoom = object->getCurZoomRate();
    const double farthest = reach - ownReachPixels;
    for (int ring = 0; ring < probeRings; ++ring) {
        for (int direction = 0; direction < probeDirections; ++direction) {
            const QPointF aside = probe(ring, direction, farthest / zoom);
            const Grip grip = controlPointGrip(object, scenePos, aside);
            if (grip.object)
                return {grip, std::hypot(aside.x(), aside.y()) * zoom, rankOfPoints};
        }
    }
    return {};
}

/// The index of the nearest control point.
int nearestPlace(const QVector<ControlPointPlace> &places, const QPointF &scenePos)
{
    const auto isNearer = [&scenePos](const ControlPointPlace &one, const ControlPointPlace &other) {
        return QLineF(one.centre, scenePos).length() < QLineF(other.centre, scenePos).length();
    };
    return int(std::min_element(places.begin(), places.end(), isNearer) - places.begin());
}

/// The point is pressed in its middle, where the object takes no other.
Candidate toldPoint(CBaseObject *object, const QPointF &scenePos, const ControlPointPlace &place, int index)
{
    const QPointF offset = place.press + offsetIntoObject(object, place.press) - scenePos;
    const double distance = QLineF(place.centre, scenePos).length() * object->getCurZoomRate();
    return {{Grip::ControlPoint, object, CObjAction::ACT_None, offset, index}, distance, rankOfPoints};
}

/// `reach` in pixels; 0 for what the object itself takes.
Candidate pointCandidate(CBaseObject *object, const QPointF &scenePos, double reach)
{
    if (object->isLocked() || isBeingWritten(*object))
        return {};
    const bool isExact = askObject(object, scenePos).kind == Grip::ControlPoint;
    const double aside = reach / object->getCurZoomRate();
    const QRectF around = object->sceneBoundingRect().adjusted(-aside, -aside, aside, aside);
    if (!isExact && (reach <= 0 || !around.contains(scenePos)))
        return {};
    const QVector<ControlPointPlace> places = controlPointPlaces(*object);
    if (places.isEmpty() && isExact)
        return {controlPointGrip(object, scenePos, {}), 0, rankOfPoints};
    if (places.isEmpty())
        return searchedPoint(object, scenePos, reach);
    const int index = nearestPlace(places, scenePos);
    const Candidate point = toldPoint(object, scenePos, places.at(index), index);
    // An object that has just been mirrored may still answer for where the point was.
    const bool isItsOwn = isExact && askObject(object, places.at(index).press).kind == Grip::ControlPoint;
    return isItsOwn || point.distance <= reach ? point : Candidate();
}

Candidate handleCandidate(CBaseObject *object, const QPointF &scenePos, Pointer pointer)
{
    if (object->isLocked() || isBeingWritten(*object))
        return {};
    const HandleLayout::Hit hit =
        layoutOf(*object).hit(object->mapFromScene(scenePos), shownHandles(*object), hitSize(pointer));
    if (hit.handle == CObjAction::ACT_None)
        return {};
    return {{Grip::Handle, object, hit.handle, {}, -1}, hit.distance, HandleLayout::rank(hit.handle)};
}

bool isHitAtOutline(CBaseObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!object.GetSpecialProperty(HitAtOutline, out))
        return false;
    bool isHit = false;
    QDataStream(bytes) >> isHit;
    return isHit;
}

/// `reach`: farthest from the lines of an object that is hit there only, scene units.
bool isHit(CBaseObject &object, const QPointF &scenePos, double reach)
{
    const QPainterPath region = object.shape();
    const QPointF pos = object.mapFromScene(scenePos);
    if (region.contains(pos))
        return true;
    QPainterPath around;
    around.addEllipse(pos, reach, reach);
    return isHitAtOutline(object) && region.intersects(around);
}

/// The objects there, or with their lines at most `reach` pixels away, that are not locked, the topmost first:
/// clicks pass through the others.
QVector<CBaseObject *> freeObjectsAt(const Page &page, const QPointF &scenePos, double reach)
{
    QVector<CBaseObject *> objects;
    const double aside = page.document() ? reach / page.document()->zoomRate() : reach;
    const QRectF around(scenePos - QPointF(aside, aside), scenePos + QPointF(aside, aside));
    const QList<QGraphicsItem *> items = page.scene()->items(around, Qt::IntersectsItemBoundingRect);
    for (QGraphicsItem *item : items) {
        auto *object = dynamic_cast<CBaseObject *>(item);
        if (object && object->GetPage() == &page && !object->isLocked() && isHit(*object, scenePos, aside))
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

Candidate frameCandidate(const Page &page, const QPointF &scenePos, Pointer pointer)
{
    const QVector<CBaseObject *> framed = framedObjects(page);
    if (framed.isEmpty())
        return {};
    const HandleLayout layout = layoutOfFrame(framed);
    const HandleLayout::Hit hit = layout.hit(scenePos, frameHandles(layout), hitSize(pointer));
    if (hit.handle == CObjAction::ACT_None)
        return {};
    return {{Grip::FrameHandle, framed.last(), hit.handle, {}, -1}, hit.distance, HandleLayout::rank(hit.handle)};
}

/// The topmost one of the equally near grips of the selected objects.
Candidate nearestGrip(const Page &page, const QPointF &scenePos, Pointer pointer)
{
    const QVector<CBaseObject *> selected = page.selectedObjects();
    const double reach = selected.size() <= mostProbedObjects ? hitSize(pointer) / 2 : 0;
    Candidate best;
    for (auto object = selected.rbegin(); object != selected.rend(); ++object)
        take(best, pointCandidate(*object, scenePos, reach));
    if (selected.size() == 1)
        take(best, handleCandidate(selected.first(), scenePos, pointer));
    else
        take(best, frameCandidate(page, scenePos, pointer));
    return best;
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

Grip findGrip(const Page &page, const QPointF &scenePos, Pointer pointer)
{
    const Candidate nearest = nearestGrip(page, scenePos, pointer);
    if (nearest.grip.object)
        return nearest.grip;
    CBaseObject *object = freeObjectsAt(page, scenePos, frameReach(pointer)).value(0);
    if (!object)
        object = selectedAround(page.selectedObjects(), scenePos);
    // Lines are as wide as other targets where nothing else is.
    if (!object)
        object = freeObjectsAt(page, scenePos, hitSize(pointer) / 2).value(0);
    return object ? Grip{Grip::Body, object, CObjAction::ACT_Move, {}, -1} : Grip();
}

ObjectsBelow findBelow(const Page &page, const QPointF &scenePos)
{
    ObjectsBelow below;
    QVector<QVector<CBaseObject *>> units;
    int place = 0; // of the selected one
    const QVector<CBaseObject *> objects = freeObjectsAt(page, scenePos, frameReach(Pointer::Mouse));
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
