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
/// Ends may lie this far inside of a box that has round corners or a slanted side, document units.
constexpr double touchingDepth = 0.5;

/// The crossings of lines that lead past boxes, and the cheapest way from one of them to another one.
class Crossings
{
public:
    Crossings(const QVector<QRectF> &boxes, QPointF from, QPointF to)
        : m_boxes(boxes)
    {
        for (const QPointF &end : {from, to}) {
            add(m_columns, end.x());
            add(m_rows, end.y());
        }
        for (const QRectF &box : boxes) {
            const QRectF around = box.adjusted(-shortestStub, -shortestStub, shortestStub, shortestStub);
            for (const QPointF &corner : {around.topLeft(), around.bottomRight()}) {
                add(m_columns, corner.x());
                add(m_rows, corner.y());
            }
        }
        // Between two boxes that are close together, too.
        for (int i = 1; i < boxes.size(); ++i) {
            add(m_columns, (boxes.at(i - 1).center().x() + boxes.at(i).center().x()) / 2);
            add(m_rows, (boxes.at(i - 1).center().y() + boxes.at(i).center().y()) / 2);
        }
    }

    /// Empty where no way leads there.
    QVector<QPointF> way(QPointF from, QPointF fromAxis, QPointF to, QPointF toAxis)
    {
        m_states.fill({}, m_columns.size() * m_rows.size() * axisCount);
        State &first = m_states[stateOf(from, fromAxis)];
        first.cost = 0;
        for (int state = cheapest(); state >= 0; state = cheapest()) {
            m_states[state].isDone = true;
            spread(state);
        }
        QVector<QPointF> points;
        for (int state = arrival(to, toAxis); state >= 0; state = m_states.at(state).from)
            points.prepend(pointOf(state));
        return points;
    }

private:
    struct State
    {
        double cost = std::numeric_limits<double>::infinity();
        int from = -1;
        bool isDone = false;
    };
    static constexpr int axisCount = 4;
    static constexpr QPointF axes[axisCount] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};

    static void add(QVector<double> &places, double place)
    {
        if (!places.contains(place))
            places.append(place);
    }
    int stateOf(QPointF point, QPointF axis) const
    {
        const int direction = int(std::find(std::begin(axes), std::end(axes), axis) - std::begin(axes));
        return (m_rows.indexOf(point.y()) * m_columns.size() + m_columns.indexOf(point.x())) * axisCount +
               direction % axisCount;
    }
    /// The cheapest state from which the way goes on along an axis, be it with a bend; -1 for none.
    int arrival(QPointF to, QPointF onward) const
    {
        int found = -1;
        double least = farAway;
        for (const QPointF &axis : axes) {
            const int state = stateOf(to, axis);
            const double cost = m_states.at(state).cost + (axis == onward ? 0 : costOfBend);
            if (axis == -onward || cost >= least)
                continue;
            found = state;
            least = cost;
        }
        return found;
    }
    QPointF pointOf(int state) const
    {
        const int crossing = state / axisCount;
        return {m_columns.at(crossing % m_columns.size()), m_rows.at(crossing / m_columns.size())};
    }
    int cheapest() const
    {
        int found = -1;
        for (int i = 0; i < m_states.size(); ++i)
            if (!m_states.at(i).isDone && m_states.at(i).cost < (found < 0 ? farAway : m_states.at(found).cost))
                found = i;
        return found;
    }
    /// To all crossings that a straight piece leads to, but not back.
    void spread(int state)
    {
        const QPointF from = pointOf(state);
        const QPointF present = axes[state % axisCount];
        const auto tryPoint = [&](QPointF to) {
            const QPointF axis = mainAxis(to - from);
            if (to == from || axis == -present || isBlocked(from, to))
                return;
            const double bend = axis == present ? 0 : costOfBend;
            State &next = m_states[stateOf(to, axis)];
            const double cost = m_states.at(state).cost + QLineF(from, to).length() + bend;
            if (cost < next.cost - noticeableCost)
                next = {cost, state, false};
        };
        for (const double x : qAsConst(m_columns))
            tryPoint({x, from.y()});
        for (const double y : qAsConst(m_rows))
            tryPoint({from.x(), y});
    }
    bool isBlocked(QPointF from, QPointF to) const
    {
        return std::any_of(m_boxes.begin(), m_boxes.end(), [&](const QRectF &box) {
            return crosses({from, to}, box);
        });
    }

    static constexpr double farAway = std::numeric_limits<double>::infinity();
    const QVector<QRectF> &m_boxes;
    QVector<double> m_columns;
    QVector<double> m_rows;
    QVector<State> m_states; ///< by row, column and axis
};

double dot(QPointF a, QPointF b)
{
    return QPointF::dotProduct(a, b);
}

/// Half the gap between ends that face each other closely, so that neither stub reaches into the other object.
double stubBetween(QPointF start, QPointF startOut, QPointF end, QPointF endOut)
{
    const double gap = dot(end - start, startOut);
    const bool isFacing = !startOut.isNull() && startOut == -endOut && gap > 0;
    return isFacing ? std::min(shortestStub, gap / 2) : shortestStub;
}

} // namespace

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

bool crosses(const QVector<QPointF> &way, const QRectF &box)
{
    const QRectF inner = box.adjusted(touchingDepth, touchingDepth, -touchingDepth, -touchingDepth);
    for (int i = 1; i < way.size(); ++i) {
        const QPointF one = way.at(i - 1);
        const QPointF other = way.at(i);
        if (std::max(one.x(), other.x()) > inner.left() && std::min(one.x(), other.x()) < inner.right() &&
            std::max(one.y(), other.y()) > inner.top() && std::min(one.y(), other.y()) < inner.bottom())
            return true;
    }
    return false;
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

QVector<QPointF> wayAround(const QVector<QRectF> &boxes, QPointF start, QPointF startOut, QPointF end,
                           QPointF endOut)
{
    const double stub = stubBetween(start, startOut, end, endOut);
    const QPointF from = start + startOut * stub;
    const QPointF to = end + endOut * stub;
    const QVector<QPointF> between = Crossings(boxes, from, to).way(from, startOut, to, -endOut);
    if (between.isEmpty())
        return {};
    const QVector<QPointF> way = simplified(QVector<QPointF>{start} + between + QVector<QPointF>{end});
    const bool isFree =
        std::none_of(boxes.begin(), boxes.end(), [&way](const QRectF &box) { return crosses(way, box); });
    return isFree ? way : QVector<QPointF>();
}

} // namespace line
