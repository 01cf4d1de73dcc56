#include <pages/gripcourse.h>

#include <framework/cbaseobject.h>

#include <pagehost/selection.h>

#include <host/controlpointplaces.h>
#include <host/geometry.h>
#include <host/gripdrag.h>
#include <host/handlelayout.h>
#include <pages/snapper.h>

#include <algorithm>
#include <cmath>

namespace pagehost {

namespace {

constexpr double quarter = 90;
/// Objects turned by less than this beside a quarter stand upright, degrees.
constexpr double uprightTolerance = 1e-6;

/// Along the axis that the way leads along most.
QPointF straight(const QPointF &way)
{
    return std::abs(way.x()) >= std::abs(way.y()) ? QPointF(way.x(), 0) : QPointF(0, way.y());
}

QPointF pointAt(const QSizeF &size, const QPointF &side)
{
    return {size.width() * (1 + side.x()) / 2, size.height() * (1 + side.y()) / 2};
}

SnapPart partOf(double side)
{
    if (side == 0)
        return SnapPart(0);
    return side < 0 ? NearPart : FarPart;
}

/// A side as it is seen; null for an object that is turned by other than quarters.
QPointF turnedByQuarters(const QPointF &side, double degrees)
{
    const double quarters = std::round(degrees / quarter);
    if (std::abs(degrees - quarters * quarter) > uprightTolerance)
        return {};
    const QPointF turned = rotated(side, quarters * quarter);
    return {std::round(turned.x()), std::round(turned.y())};
}

/// Of a box that a corner or side is dragged of. `from` stays.
QRectF boxBetween(const QPointF &from, const QPointF &to, const QPointF &side, const QRectF &start)
{
    QRectF box = start;
    if (side.x() < 0)
        box = {QPointF(to.x(), box.top()), QPointF(from.x(), box.bottom())};
    else if (side.x() > 0)
        box = {QPointF(from.x(), box.top()), QPointF(to.x(), box.bottom())};
    if (side.y() < 0)
        box = {QPointF(box.left(), to.y()), QPointF(box.right(), from.y())};
    else if (side.y() > 0)
        box = {QPointF(box.left(), from.y()), QPointF(box.right(), to.y())};
    return box;
}

} // namespace

GripCourse::GripCourse(const Grip &grip, const QPointF &press, const QVector<CBaseObject *> &moving,
                       Snapper &snapper)
    : m_grip(grip)
    , m_press(press)
    , m_snapper(snapper)
    , m_moving(moving)
    , m_startBox(boundsOf(moving))
{
    const bool isPoint = grip.kind == Grip::ControlPoint;
    m_snapper.begin(isPoint ? QVector<CBaseObject *>{grip.object} : moving);
    if (isPoint)
        takePoint();
    else if (isResize())
        takeCorners();
}

void GripCourse::takePoint()
{
    const QVector<ControlPointPlace> places = controlPointPlaces(*m_grip.object);
    m_point = m_grip.point;
    if (m_point < 0 || m_point >= places.size())
        return;
    const ControlPointPlace &place = places[m_point];
    m_pointStart = {{place.centre, QSizeF(0, 0)}, place.movesAcross ? NearPart : 0, place.movesDown ? NearPart : 0};
    // Along slanting axes a point can reach a line only where it is free.
    if (m_grip.object->rotation() != 0 && !(place.movesAcross && place.movesDown))
        m_pointStart.across = m_pointStart.down = 0;
}

void GripCourse::takeCorners()
{
    m_side = HandleLayout::side(m_grip.action);
    if (m_grip.kind == Grip::FrameHandle) {
        m_sceneSide = m_side;
        m_startSize = m_startBox.size();
        m_corner = m_startBox.topLeft() + pointAt(m_startSize, m_side);
        m_fixed = m_startBox.topLeft() + pointAt(m_startSize, -m_side);
        return;
    }
    m_degrees = m_grip.object->rotation();
    m_sceneSide = turnedByQuarters(m_side, m_degrees);
    m_startSize = m_grip.object->getClientRect().size();
    m_corner = m_grip.object->mapToScene(pointAt(m_startSize, m_side));
    m_fixed = m_grip.object->mapToScene(pointAt(m_startSize, -m_side));
}

bool GripCourse::isResize() const
{
    return (m_grip.kind == Grip::Handle || m_grip.kind == Grip::FrameHandle) &&
           HandleLayout::isResize(m_grip.action);
}

/// Whether the grip can be led elsewhere than the pointer.
bool GripCourse::canDrag() const
{
    if (m_grip.kind == Grip::FrameHandle)
        return true;
    if (m_grip.kind == Grip::ControlPoint)
        return m_point >= 0;
    return GripDrag::running(*m_grip.object) != nullptr;
}

QPointF GripCourse::lead(const DragPointer &pointer)
{
    m_subject.reset();
    const QPointF away = pointer.pos - m_press;
    m_isDrag = m_isDrag || std::hypot(away.x(), away.y()) >= dragStart(pointer.kind) * pointer.pixel;
    if (!m_isDrag)
        return m_press;
    return canDrag() ? leadDrag(pointer) : pointer.pos;
}

QPointF GripCourse::leadDrag(const DragPointer &pointer)
{
    if (m_grip.kind == Grip::Body)
        return leadBody(pointer);
    if (m_grip.kind == Grip::ControlPoint)
        return leadPoint(pointer);
    return isResize() ? leadCorner(pointer) : pointer.pos;
}

QPointF GripCourse::leadBody(const DragPointer &pointer)
{
    QPointF way = pointer.pos - m_press;
    if (pointer.modifiers.testFlag(Qt::ShiftModifier))
        way = straight(way);
    SnapSubject subject{m_startBox.translated(way), AllParts, AllParts};
    if (pointer.modifiers.testFlag(Qt::ShiftModifier))
        (way.x() == 0 ? subject.across : subject.down) = 0;
    return m_press + way + snapOffset(subject, pointer);
}

/// The point may have limits, which it keeps.
QPointF GripCourse::leadPoint(const DragPointer &pointer)
{
    SnapSubject subject = m_pointStart;
    subject.box.translate(pointer.pos - m_press);
    return pointer.pos + snapOffset(subject, pointer);
}

QPointF GripCourse::leadCorner(const DragPointer &pointer)
{
    const QPointF way = pointer.pos - m_press;
    const bool keepsProportions =
        isCorner() && !m_startSize.isEmpty() && pointer.modifiers.testFlag(Qt::ShiftModifier);
    const QPointF corner = m_corner + (keepsProportions ? proportional(way) : way);
    const QPointF unsnapped = m_press + (corner - m_corner);
    std::optional<SnapSubject> subject = cornerSubject(corner);
    if (!subject)
        return unsnapped;
    if (!keepsProportions)
        return unsnapped + snapOffset(*subject, pointer);
    const QPointF diagonal = corner - m_fixed;
    if (m_sceneSide.isNull() || diagonal.isNull())
        return unsnapped;
    // Only one of the sides can be chosen: the longer one, as it is moved farther.
    const bool isWide = std::abs(diagonal.x()) >= std::abs(diagonal.y());
    (isWide ? subject->down : subject->across) = 0;
    const QPointF offset = snapOffset(*subject, pointer);
    const double growth = isWide ? offset.x() / diagonal.x() : offset.y() / diagonal.y();
    return unsnapped + diagonal * growth;
}

/// The way of a corner that keeps the proportions, scene coordinates: the axis that grows more decides.
QPointF GripCourse::proportional(const QPointF &way) const
{
    const QPointF itemWay = rotated(way, -m_degrees);
    const double across = itemWay.x() * m_side.x() / m_startSize.width();
    const double down = itemWay.y() * m_side.y() / m_startSize.height();
    const double growth = std::max({across, down, -1.0});
    return rotated({growth * m_startSize.width() * m_side.x(), growth * m_startSize.height() * m_side.y()},
                   m_degrees);
}

/// Nothing for the side of an object that is turned by other than quarters.
std::optional<SnapSubject> GripCourse::cornerSubject(const QPointF &corner) const
{
    if (!m_sceneSide.isNull())
        return SnapSubject{boxBetween(m_fixed, corner, m_sceneSide, m_startBox), partOf(m_sceneSide.x()),
                           partOf(m_sceneSide.y())};
    if (isCorner())
        return SnapSubject{{corner, QSizeF(0, 0)}, NearPart, NearPart};
    return std::nullopt;
}

QPointF GripCourse::snapOffset(const SnapSubject &subject, const DragPointer &pointer)
{
    m_subject = subject;
    return m_snapper.offsetOf(subject, pointer.pixel, pointer.kind, pointer.modifiers.testFlag(Qt::AltModifier));
}

void GripCourse::showGuides()
{
    if (!m_subject) {
        m_snapper.clearGuides();
        return;
    }
    if (m_grip.kind == Grip::ControlPoint) {
        m_subject->box.moveTopLeft(controlPointPlaces(*m_grip.object).value(m_point).centre);
        m_snapper.showGuides(*m_subject);
        return;
    }
    const bool isPoint = m_grip.kind == Grip::Handle && m_sceneSide.isNull();
    m_subject->box = isPoint
                         ? QRectF(m_grip.object->mapToScene(pointAt(m_grip.object->getClientRect().size(), m_side)),
                                  QSizeF(0, 0))
                         : boundsOf(m_moving);
    m_snapper.showGuides(*m_subject);
}

} // namespace pagehost
