#include <shapekit/pathtext.h>

#include <algorithm>
#include <cmath>

namespace shapekit {

namespace {

/// The slope at a point between two pieces of these slopes. Where the curve turns it is level, so that no part of
/// it reaches beyond the points: harmonic means as by Fritsch and Butland, "A method for constructing local
/// monotone piecewise cubic interpolants", 1984.
double slopeBetween(double before, double after)
{
    return before * after > 0 ? 2 * before * after / (before + after) : 0;
}

/// The slope at an end, as if the parabola through three points went on there, at most so steep that the piece
/// stays between its points.
double slopeAtEnd(double outer, double inner)
{
    const double slope = (3 * outer - inner) / 2;
    if (slope * outer <= 0)
        return 0;
    return std::abs(slope) > 3 * std::abs(outer) ? 3 * outer : slope;
}

/// Points that are closer side by side have no slope to speak of, document units.
constexpr double closest = 1e-6;

double slopeOf(QPointF from, QPointF to)
{
    return (to.y() - from.y()) / std::max(closest, to.x() - from.x());
}

double slopeAt(int point, const QVector<double> &pieces)
{
    const int last = pieces.size() - 1;
    if (point == 0)
        return slopeAtEnd(pieces[0], pieces[std::min(1, last)]);
    if (point > last)
        return slopeAtEnd(pieces[last], pieces[std::max(0, last - 1)]);
    return slopeBetween(pieces[point - 1], pieces[point]);
}

} // namespace

PathText &PathText::graph(const QVector<QPointF> &points)
{
    if (points.size() < 2)
        return *this;
    QVector<double> pieces;
    for (int i = 1; i < points.size(); ++i)
        pieces.append(slopeOf(points[i - 1], points[i]));
    moveTo(points[0]);
    for (int i = 1; i < points.size(); ++i) {
        const double third = (points[i].x() - points[i - 1].x()) / 3;
        curveTo(points[i - 1] + QPointF(third, third * slopeAt(i - 1, pieces)),
                points[i] - QPointF(third, third * slopeAt(i, pieces)), points[i]);
    }
    return *this;
}

} // namespace shapekit
