#include "core/arranging.h"

#include <pagehost/commands.h>
#include <pagehost/objectframe.h>
#include <pagehost/page.h>
#include <pagehost/selection.h>

#include <framework/cbaseobject.h>

#include <algorithm>
#include <iterator>

namespace board {

namespace {

using pagehost::GeometrySnapshot;

/// An object or a group, and how far it goes, scene units.
struct Shift
{
    Unit unit;
    QPointF delta;
};

bool isLocked(const Unit &unit)
{
    return std::any_of(unit.begin(), unit.end(), [](const CBaseObject *object) { return object->isLocked(); });
}

/// Those of a group that don't just follow others.
Unit movable(const Unit &unit)
{
    Unit found;
    std::copy_if(unit.begin(), unit.end(), std::back_inserter(found),
                 [&](CBaseObject *object) { return unit.size() == 1 || object->canDo(OperationMove); });
    return found;
}

QRectF boxOf(const Unit &unit)
{
    return pagehost::boundsOf(unit);
}

/// One step for all; an object that is where it should be already gets no rounding errors.
bool move(const QVector<Shift> &shifts, const QString &textKey)
{
    Unit objects;
    for (const Shift &shift : shifts)
        objects += shift.unit;
    const QVector<GeometrySnapshot> before = pagehost::takeSnapshots(objects, GeometrySnapshot::PlaceOnly);
    for (const Shift &shift : shifts)
        if (!shift.delta.isNull() && !isLocked(shift.unit))
            for (CBaseObject *object : shift.unit)
                object->setPos(object->getPos() + shift.delta, true);
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

/// Along one axis.
double wayInto(double pageStart, double pageEnd, double start, double end)
{
    if (end - start > pageEnd - pageStart)
        return (pageStart + pageEnd - start - end) / 2;
    return std::max(pageStart - start, 0.0) + std::min(pageEnd - end, 0.0);
}

double startOf(const QRectF &box, Qt::Orientation direction)
{
    return direction == Qt::Horizontal ? box.left() : box.top();
}

double lengthOf(const QRectF &box, Qt::Orientation direction)
{
    return direction == Qt::Horizontal ? box.width() : box.height();
}

QSizeF sizeOf(const Unit &unit)
{
    return unit.size() == 1 ? unit.first()->getClientRect().size() : boxOf(unit).size();
}

double areaOf(const Unit &unit)
{
    return sizeOf(unit).width() * sizeOf(unit).height();
}

double growthOf(double length, double wanted)
{
    return length > 0 ? wanted / length : 1;
}

/// Keeps the top left corner.
void resize(const QVector<GeometrySnapshot> &before, const Unit &unit, const QSizeF &size)
{
    const QSizeF present = sizeOf(unit);
    if (present == size)
        return;
    if (unit.size() > 1) {
        pagehost::scaleTogether(before, boxOf(unit).topLeft(), growthOf(present.width(), size.width()),
                                growthOf(present.height(), size.height()));
        return;
    }
    unit.first()->setSize(size, true, false);
    unit.first()->setPos(before.first().pos(), true);
}

} // namespace

QVector<Unit> unitsOf(const pagehost::Page &page, const QVector<CBaseObject *> &objects)
{
    QVector<Unit> units;
    const QVector<pagehost::GroupUnit> holding = page.grouping().unitsHolding(objects);
    for (const pagehost::GroupUnit &unit : holding)
        units.append(unit.objects);
    return units;
}

bool align(const QVector<Unit> &units, Edge edge)
{
    QRectF all;
    for (const Unit &unit : units)
        all |= boxOf(unit);
    QVector<Shift> shifts;
    for (const Unit &unit : units)
        shifts.append({unit, deltaTo(all, boxOf(unit), edge)});
    return move(shifts, QStringLiteral("IDS_BOARD_ALIGN"));
}

bool distribute(const QVector<Unit> &units, Qt::Orientation direction)
{
    if (units.size() < 3)
        return false;
    QVector<Unit> ordered = units;
    const auto start = [direction](const Unit &unit) { return startOf(boxOf(unit), direction); };
    std::stable_sort(ordered.begin(), ordered.end(),
                     [&](const Unit &one, const Unit &other) { return start(one) < start(other); });
    double lengths = 0;
    for (const Unit &unit : qAsConst(ordered))
        lengths += lengthOf(boxOf(unit), direction);
    const QRectF last = boxOf(ordered.last());
    const double room = startOf(last, direction) + lengthOf(last, direction) - start(ordered.first());
    const double gap = (room - lengths) / (ordered.size() - 1);
    QVector<Shift> shifts;
    double place = start(ordered.first());
    for (const Unit &unit : qAsConst(ordered)) {
        const double by = place - start(unit);
        const bool isOutermost = unit == ordered.first() || unit == ordered.last();
        if (!isOutermost)
            shifts.append({unit, direction == Qt::Horizontal ? QPointF(by, 0) : QPointF(0, by)});
        place += lengthOf(boxOf(unit), direction) + gap;
    }
    return move(shifts, QStringLiteral("IDS_BOARD_DISTRIBUTE"));
}

bool isOff(const Unit &unit, const QRectF &page)
{
    return !page.contains(boxOf(unit));
}

bool bringBack(const QVector<Unit> &units, const QRectF &page)
{
    QVector<Shift> shifts;
    for (const Unit &unit : units) {
        const QRectF box = boxOf(unit);
        shifts.append({unit,
                       {wayInto(page.left(), page.right(), box.left(), box.right()),
                        wayInto(page.top(), page.bottom(), box.top(), box.bottom())}});
    }
    return move(shifts, QStringLiteral("IDS_BOARD_BRING_BACK"));
}

bool makeSameSize(const QVector<Unit> &units)
{
    if (units.isEmpty())
        return false;
    const auto isSmaller = [](const Unit &one, const Unit &other) { return areaOf(one) < areaOf(other); };
    const QSizeF size = sizeOf(*std::max_element(units.begin(), units.end(), isSmaller));
    QVector<GeometrySnapshot> before;
    for (const Unit &unit : units) {
        if (isLocked(unit))
            continue;
        const auto snapshots = pagehost::takeSnapshots(movable(unit), GeometrySnapshot::WithContent);
        resize(snapshots, unit, size);
        before += snapshots;
    }
    return pagehost::pushGeometryChange(before, QStringLiteral("IDS_BOARD_SAME_SIZE"));
}

} // namespace board
