#include "core/arranging.h"

#include <pagehost/commands.h>
#include <pagehost/selection.h>

#include <framework/cbaseobject.h>

#include <algorithm>
#include <iterator>

namespace board {

namespace {

using pagehost::GeometrySnapshot;

/// An object and how far it goes, scene units.
struct Shift
{
    CBaseObject *object;
    QPointF delta;
};

QVector<CBaseObject *> unlocked(const QVector<CBaseObject *> &objects)
{
    QVector<CBaseObject *> free;
    std::copy_if(objects.begin(), objects.end(), std::back_inserter(free),
                 [](const CBaseObject *object) { return !object->isLocked(); });
    return free;
}

QRectF boxOf(CBaseObject *object)
{
    return pagehost::boundsOf({object});
}

/// One step for all; an object that is where it should be already gets no rounding errors.
bool move(const QVector<Shift> &shifts, const QString &textKey)
{
    QVector<CBaseObject *> objects;
    for (const Shift &shift : shifts)
        objects.append(shift.object);
    const QVector<GeometrySnapshot> before = pagehost::takeSnapshots(objects, GeometrySnapshot::PlaceOnly);
    for (const Shift &shift : shifts)
        if (!shift.delta.isNull() && !shift.object->isLocked())
            shift.object->setPos(shift.object->getPos() + shift.delta, true);
    return pagehost::pushGeometryChange(before, textKey);
}

QPointF deltaTo(const QRectF &all, const QRectF &box, Edge edge)
{
    switch (edge) {
    case Edge::Left:
        return {all.left() - box.left(), 0};
    case Edge::Center:
        return {all.center().x() - box.center().x(), 0};
    case Edge::Right:
        return {all.right() - box.right(), 0};
    case Edge::Top:
        return {0, all.top() - box.top()};
    case Edge::Middle:
        return {0, all.center().y() - box.center().y()};
    default:
        return {0, all.bottom() - box.bottom()};
    }
}

double startOf(const QRectF &box, Qt::Orientation direction)
{
    return direction == Qt::Horizontal ? box.left() : box.top();
}

double lengthOf(const QRectF &box, Qt::Orientation direction)
{
    return direction == Qt::Horizontal ? box.width() : box.height();
}

double areaOf(const CBaseObject *object)
{
    const QSizeF size = object->getClientRect().size();
    return size.width() * size.height();
}

} // namespace

bool align(const QVector<CBaseObject *> &objects, Edge edge)
{
    const QRectF all = pagehost::boundsOf(objects);
    QVector<Shift> shifts;
    for (CBaseObject *object : objects)
        shifts.append({object, deltaTo(all, boxOf(object), edge)});
    return move(shifts, QStringLiteral("IDS_BOARD_ALIGN"));
}

bool distribute(const QVector<CBaseObject *> &objects, Qt::Orientation direction)
{
    if (objects.size() < 3)
        return false;
    QVector<CBaseObject *> ordered = objects;
    const auto start = [direction](CBaseObject *object) { return startOf(boxOf(object), direction); };
    std::stable_sort(ordered.begin(), ordered.end(),
                     [&](CBaseObject *one, CBaseObject *other) { return start(one) < start(other); });
    double lengths = 0;
    for (CBaseObject *object : qAsConst(ordered))
        lengths += lengthOf(boxOf(object), direction);
    const QRectF last = boxOf(ordered.last());
    const double room = startOf(last, direction) + lengthOf(last, direction) - start(ordered.first());
    const double gap = (room - lengths) / (ordered.size() - 1);
    QVector<Shift> shifts;
    double place = start(ordered.first());
    for (CBaseObject *object : qAsConst(ordered)) {
        const double by = place - start(object);
        const bool isOutermost = object == ordered.first() || object == ordered.last();
        if (!isOutermost)
            shifts.append({object, direction == Qt::Horizontal ? QPointF(by, 0) : QPointF(0, by)});
        place += lengthOf(boxOf(object), direction) + gap;
    }
    return move(shifts, QStringLiteral("IDS_BOARD_DISTRIBUTE"));
}

bool makeSameSize(const QVector<CBaseObject *> &objects)
{
    if (objects.isEmpty())
        return false;
    const CBaseObject *largest =
        *std::max_element(objects.begin(), objects.end(), [](const CBaseObject *one, const CBaseObject *other) {
            return areaOf(one) < areaOf(other);
        });
    const QSizeF size = largest->getClientRect().size();
    const QVector<GeometrySnapshot> before =
        pagehost::takeSnapshots(unlocked(objects), GeometrySnapshot::WithContent);
    for (const GeometrySnapshot &snapshot : before) {
        if (snapshot.size() == size)
            continue;
        snapshot.object()->setSize(size, true, false);
        snapshot.object()->setPos(snapshot.pos(), true);
    }
    return pagehost::pushGeometryChange(before, QStringLiteral("IDS_BOARD_SAME_SIZE"));
}

} // namespace board
