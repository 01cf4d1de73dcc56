#include "line/core/joints.h"

#include "line/core/angledway.h"

#include <QtCore/QtMath>
#include <QtGui/QPolygonF>

#include <algorithm>
#include <cmath>
#include <limits>

namespace line {

namespace {

/// A larger count is damage.
constexpr qint32 mostPlaces = 64;

/// How many times the vector `along` from `from` it is to the farthest side of the outline; 0 when it meets none.
double farthestMeeting(const QPainterPath &outline, QPointF from, QPointF along)
{
    double farthest = 0;
    const QList<QPolygonF> polygons = outline.toSubpathPolygons();
    for (const QPolygonF &polygon : polygons) {
        for (int i = 1; i < polygon.size(); ++i) {
            const QPointF side = polygon.at(i) - polygon.at(i - 1);
            const QPointF offset = polygon.at(i - 1) - from;
            const double divisor = along.x() * side.y() - along.y() * side.x();
            if (divisor == 0)
                continue;
            const double part = (offset.x() * along.y() - offset.y() * along.x()) / divisor;
            const double times = (offset.x() * side.y() - offset.y() * side.x()) / divisor;
            if (part >= 0 && part <= 1)
                farthest = std::max(farthest, times);
        }
    }
    return farthest;
}

/// Where a ray leaves the outline, or else the box around it.
QPointF edge(const QPainterPath &outline, QPointF from, QPointF along)
{
    double times = farthestMeeting(outline, from, along);
    if (times <= 0) {
        QPainterPath box;
        box.addRect(outline.boundingRect());
        times = farthestMeeting(box, from, along);
    }
    return from + along * times;
}

/// The side of a box that faces a point; the wider gap decides.
QPointF sideTowards(const QRectF &box, QPointF point)
{
    const QPointF way = point - box.center();
    const double gapX = std::abs(way.x()) - box.width() / 2;
    const double gapY = std::abs(way.y()) - box.height() / 2;
    return gapX >= gapY ? QPointF(way.x() < 0 ? -1 : 1, 0) : QPointF(0, way.y() < 0 ? -1 : 1);
}

constexpr std::array<QPointF, 4> sides{QPointF(1, 0), QPointF(0, 1), QPointF(-1, 0), QPointF(0, -1)};
bool crossesAny(const QVector<QPointF> &way, const QVector<std::optional<JoinedObject>> &objects)
{
    return std::any_of(objects.begin(), objects.end(), [&way](const std::optional<JoinedObject> &object) {
        return object && crosses(way, object->outline.boundingRect());
    });
}

/// The present end, and for one on an outline those in the middles of its sides.
QVector<JoinedEnd> possibleEnds(const JoinedEnd &present, const std::optional<JoinedObject> &object,
                                const QString &place)
{
    QVector<JoinedEnd> ends{present};
    if (!object || object->placeNamed(place))
        return ends;
    const QPointF centre = object->outline.boundingRect().center();
    for (const QPointF &side : sides)
        ends.append({edge(object->outline, centre, side), side});
    return ends;
}

/// Takes other sides where the way between the present ones leads through an object, and another doesn't.
void avoidObjects(std::array<JoinedEnd, 2> &ends, const Joints &joints,
                  const QVector<std::optional<JoinedObject>> &objects)
{
    const auto wayBetween = [](const JoinedEnd &start, const JoinedEnd &end) {
        return angledWay(start.point, start.out, end.point, end.out);
    };
    if (!crossesAny(wayBetween(ends[0], ends[1]), objects))
        return;
    const QVector<JoinedEnd> starts = possibleEnds(ends[0], objects.value(0), joints[0].place);
    const QVector<JoinedEnd> others = possibleEnds(ends[1], objects.value(1), joints[1].place);
    double least = std::numeric_limits<double>::infinity();
    for (const JoinedEnd &start : starts) {
        for (const JoinedEnd &end : others) {
            const QVector<QPointF> way = wayBetween(start, end);
            const double cost = costOf(way);
            if (cost >= least || crossesAny(way, objects))
                continue;
            least = cost;
            ends = {start, end};
        }
    }
}

/// The corners of a way round the objects, where the usual one leads through them and another one doesn't.
QVector<QPointF> detourBetween(const std::array<JoinedEnd, 2> &ends,
                               const QVector<std::optional<JoinedObject>> &objects)
{
    const bool isKnown = !ends[0].out.isNull() && !ends[1].out.isNull();
    if (!isKnown || !crossesAny(angledWay(ends[0].point, ends[0].out, ends[1].point, ends[1].out), objects))
        return {};
    QVector<QRectF> boxes;
    for (const std::optional<JoinedObject> &object : objects)
        if (object)
            boxes.append(object->outline.boundingRect());
    const QVector<QPointF> way = wayAround(boxes, ends[0].point, ends[0].out, ends[1].point, ends[1].out);
    return way.mid(1, std::max(0, way.size() - 2));
}

QPointF vectorAt(double degrees)
{
    const double angle = qDegreesToRadians(degrees);
    return {std::cos(angle), std::sin(angle)};
}

} // namespace

QByteArray encoded(const Joints &joints)
{
    QByteArray bytes;
    if (joints[0].isUnused() && joints[1].isUnused())
        return bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    for (const Joint &joint : joints)
        out << joint.object << joint.place << joint.out;
    return bytes;
}

Joints decodedJoints(const QByteArray &bytes)
{
    Joints joints;
    QDataStream in(bytes);
    for (Joint &joint : joints) {
        in >> joint.object >> joint.place >> joint.out;
        joint.out = joint.out.isNull() ? QPointF() : mainAxis(joint.out);
    }
    return in.status() == QDataStream::Ok ? joints : Joints();
}

const JoinedObject::Place *JoinedObject::placeNamed(const QString &name) const
{
    const auto found =
        std::find_if(places.begin(), places.end(), [&name](const Place &place) { return place.name == name; });
    return name.isEmpty() || found == places.end() ? nullptr : &*found;
}

QPointF JoinedObject::aim(const QString &place) const
{
    const Place *named = placeNamed(place);
    return named ? named->point : outline.boundingRect().center();
}

QVector<std::optional<JoinedObject>> readJoinedObjects(QDataStream &in)
{
    qint32 count = 0;
    in >> count;
    QVector<std::optional<JoinedObject>> objects;
    for (qint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        bool isThere = false;
        in >> isThere;
        objects.append(std::nullopt);
        if (!isThere)
            continue;
        JoinedObject object;
        qint32 places = 0;
        in >> object.outline >> places;
        object.places.resize(qBound(0, places, mostPlaces));
        for (JoinedObject::Place &place : object.places)
            in >> place.name >> place.point >> place.direction;
        objects.last() = object;
    }
    return in.status() == QDataStream::Ok ? objects : QVector<std::optional<JoinedObject>>();
}

JoinedEnd joinedEnd(const JoinedObject &object, const QString &place, QPointF from, bool isAngled)
{
    const QRectF box = object.outline.boundingRect();
    if (const JoinedObject::Place *named = object.placeNamed(place)) {
        const bool isAny = std::isnan(named->direction);
        return {named->point, isAny ? sideTowards(box, named->point) : mainAxis(vectorAt(named->direction))};
    }
    const QPointF centre = box.center();
    const QPointF side = sideTowards(box, from);
    const QPointF way = from - centre;
    const QPointF along = isAngled || way.isNull() ? side : way;
    return {edge(object.outline, centre, along), side};
}

void follow(LineCourse &course, Joints &joints, const QVector<std::optional<JoinedObject>> &objects)
{
    const std::array<QPointF *, 2> ends{&course.start, &course.end};
    std::array<QPointF, 2> aims{course.start, course.end};
    for (int i = 0; i < objects.size() && i < 2; ++i)
        if (objects.at(i))
            aims[i] = objects.at(i)->aim(joints[i].place);
    std::array<JoinedEnd, 2> joined{JoinedEnd{course.start, joints[0].out}, JoinedEnd{course.end, joints[1].out}};
    for (int i = 0; i < objects.size() && i < 2; ++i)
        if (objects.at(i))
            joined[i] = joinedEnd(*objects.at(i), joints[i].place, aims[1 - i], course.isAngled);
    if (course.isAngled)
        avoidObjects(joined, joints, objects);
    course.detour = course.isAngled ? detourBetween(joined, objects) : QVector<QPointF>();
    for (int i = 0; i < 2; ++i) {
        *ends[i] = joined[i].point;
        joints[i].out = joined[i].out;
    }
}

} // namespace line
