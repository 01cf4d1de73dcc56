#include "line/core/angledway.h"

#include <QtCore/QLineF>

#include <algorithm>
#include <cmath>
#include <limits>

namespace line {

namespace {

/// A right-angled line leaves an object by at least this where there is room, document units.
constexpr double shortestStub = 20;
/// A bend costs as much as this length.
constexpr double costOfBend = 1e4;
/// A line that turns back on itself is the last resort.
constexpr double costOfTurningBack = 1e7;
/// Of ways that cost the same but for rounding errors, the first one is taken.
constexpr double noticeableCost = 1e-6;

double dot(QPointF a, QPointF b)
{
    return QPointF::dotProduct(a, b);
}

/// Without points that stand still or go straight on.
QVector<QPointF> simplified(const QVector<QPointF> &points)
{
    QVector<QPointF> way;
    for (const QPointF &point : points) {
        if (!way.isEmpty() && way.last() == point)
            continue;
        while (way.size() >= 2) {
            const QPointF before = mainAxis(way.last() - way.at(way.size() - 2));
            if (before != mainAxis(point - way.last()))
                break;
            way.removeLast();
        }
        way.append(point);
    }
    return way;
}

/// Half the gap between ends that face each other closely, so that neither stub reaches into the other object.
double stubBetween(QPointF start, QPointF startOut, QPointF end, QPointF endOut)
{
    const double gap = dot(end - start, startOut);
    const bool isFacing = !startOut.isNull() && startOut == -endOut && gap > 0;
    return isFacing ? std::min(shortestStub, gap / 2) : shortestStub;
}

} // namespace

double costOf(const QVector<QPointF> &way)
{
    double cost = 0;
    for (int i = 1; i < way.size(); ++i) {
        cost += QLineF(way.at(i - 1), way.at(i)).length();
        if (i + 1 == way.size())
            continue;
        const double turn = dot(mainAxis(way.at(i) - way.at(i - 1)), mainAxis(way.at(i + 1) - way.at(i)));
        cost += costOfBend + (turn < 0 ? costOfTurningBack : 0);
    }
    return cost;
}

QPointF mainAxis(QPointF way)
{
    if (std::abs(way.x()) >= std::abs(way.y()))
        return {way.x() < 0 ? -1.0 : 1.0, 0};
    return {0, way.y() < 0 ? -1.0 : 1.0};
}

QVector<QPointF> angledWay(QPointF start, QPointF startOut, QPointF end, QPointF endOut)
{
    const double stub = stubBetween(start, startOut, end, endOut);
    const QPointF a = start + startOut * stub;
    const QPointF b = end + endOut * stub;
    const QPointF middle = (a + b) / 2;
    const QVector<QVector<QPointF>> ways{{start, a, {middle.x(), a.y()}, {middle.x(), b.y()}, b, end},
                                         {start, a, {a.x(), middle.y()}, {b.x(), middle.y()}, b, end},
                                         {start, a, {b.x(), a.y()}, b, end},
                                         {start, a, {a.x(), b.y()}, b, end}};
    QVector<QPointF> best;
    double least = std::numeric_limits<double>::infinity();
    for (const QVector<QPointF> &way : ways) {
        const QVector<QPointF> simple = simplified(way);
        const double cost = costOf(simple);
        if (cost >= least - noticeableCost)
            continue;
        best = simple;
        least = cost;
    }
    return best;
}

} // namespace line
