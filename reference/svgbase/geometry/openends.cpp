#include "geometry/openends.h"

#include <cmath>

namespace Svg {

namespace {

/// How far an end is drawn back, as a share of the size of its path: enough for a painter to notice, and too little
/// to see.
constexpr double gapShare = 1e-7;

// The direction of an end comes from the nearest point that differs from it.
QPointF arrivalAt(const QPainterPath &path, int end)
{
    const QPointF place = path.elementAt(end);
    for (int i = end - 1; i >= 0; --i) {
        const QPointF way = place - path.elementAt(i);
        if (!way.isNull())
            return way;
    }
    return QPointF();
}

} // namespace

QPainterPath withOpenEnds(const QPainterPath &path, const QVector<int> &ends)
{
    if (ends.isEmpty())
        return path;
    QPainterPath result = path;
    const QRectF box = path.controlPointRect();
    const double gap = gapShare * (box.width() + box.height());
    for (const int end : ends) {
        const QPointF way = arrivalAt(path, end);
        const double length = std::hypot(way.x(), way.y());
        if (!(length > 0))
            continue;
        const QPointF place = path.elementAt(end) - way * (qMin(gap, length / 2) / length);
        result.setElementPositionAt(end, place.x(), place.y());
    }
    return result;
}

} // namespace Svg
