// A stroke is the union of its pieces, which are as wide as the pen, of the joins on the outer side of corners, and
// of caps. Their outlines all turn the same way, so that overlaps count as inside.

#include "geometry/stroking.h"

#include "geometry/curve.h"
#include "geometry/dashing.h"

#include <QtCore/QtMath>

#include <algorithm>
#include <cmath>

namespace Svg {

namespace {

/// Largest angle of a piece of a round join or cap.
constexpr double largestStep = M_PI / 4;

/// Sides of a line as it is gone along.
enum Side { Left = 1, Right = -1 };

double dot(const QPointF &a, const QPointF &b)
{
    return a.x() * b.x() + a.y() * b.y();
}

double cross(const QPointF &a, const QPointF &b)
{
    return a.x() * b.y() - a.y() * b.x();
}

QPointF leftOf(const QPointF &direction)
{
    return {-direction.y(), direction.x()};
}

QPointF turned(const QPointF &vector, double cosine, double sine)
{
    return {vector.x() * cosine - vector.y() * sine, vector.x() * sine + vector.y() * cosine};
}

double largestScale(const QTransform &t)
{
    return std::sqrt(qMax(t.m11() * t.m11() + t.m12() * t.m12(), t.m21() * t.m21() + t.m22() * t.m22()));
}

class Stroker
{
public:
    Stroker(const QPen &pen, const QTransform &toPainter, const Flattening &flattening, StrokeOutline *outline);
    /// False when the outline is of no use any more.
    bool add(const Polyline &line);

private:
    void addOpenSide(const Polyline &line, Side side);
    void addClosedSide(const Polyline &line, Side side);
    void reverseFrom(size_t first);
    void endPolygon() { m_outline->ends.push_back(int(m_outline->points.size())); }
    void addCorner(const Polyline::Point &before, const Polyline::Point &corner, Side side);
    void addOuter(const Polyline::Point &before, const Polyline::Point &corner, Side side);
    void addInner(const Polyline::Point &before, const Polyline::Point &corner, Side side);
    void addMiter(const QPointF &place, const QPointF &arrival, const QPointF &departure, Side side);
    void addArc(const QPointF &place, const QPointF &from, double angle);
    void addCap(const QPointF &place, const QPointF &direction);
    void add(const QPointF &place);
    QPointF offset(const QPointF &direction, Side side) const { return leftOf(direction) * (m_halfWidth * side); }
    /// To the point where the sides of two pieces meet.
    QPointF tip(const QPointF &arrival, const QPointF &departure, Side side) const
    {
        return offset(arrival + departure, side) / (1 + dot(arrival, departure));
    }

    double m_halfWidth;
    Qt::PenJoinStyle m_join;
    Qt::PenCapStyle m_cap;
    double m_miterLimit;
    /// Largest angle of a piece of an arc, and its cosine.
    double m_step;
    double m_stepCosine;
    QTransform m_toPainter;
    size_t m_mostPoints;
    StrokeOutline *m_outline;
};

Stroker::Stroker(const QPen &pen, const QTransform &toPainter, const Flattening &flattening, StrokeOutline *outline)
    : m_halfWidth(pen.widthF() / 2)
    , m_join(pen.joinStyle())
    , m_cap(pen.capStyle())
    , m_miterLimit(pen.miterLimit())
    , m_step(qMin(largestStep, 2 * std::acos(qMax(0.0, 1 - flattening.distance / m_halfWidth))))
    , m_stepCosine(std::cos(m_step))
    , m_toPainter(toPainter)
    , m_mostPoints(size_t(flattening.mostPoints))
    , m_outline(outline)
{
}

void Stroker::add(const QPointF &place)
{
    m_outline->points.push_back(m_toPainter.map(place));
}

void Stroker::addArc(const QPointF &place, const QPointF &from, double angle)
{
    const int steps = qMax(1, qCeil(qAbs(angle) / m_step));
    const double cosine = std::cos(angle / steps);
    const double sine = std::sin(angle / steps);
    QPointF arm = from;
    add(place + arm);
    for (int i = 0; i < steps; ++i) {
        arm = turned(arm, cosine, sine);
        add(place + arm);
    }
}

// From the left side of a line that ends to its right side.
void Stroker::addCap(const QPointF &place, const QPointF &direction)
{
    if (m_cap == Qt::SquareCap) {
        const QPointF end = place + direction * m_halfWidth;
        add(end + offset(direction, Left));
        add(end + offset(direction, Right));
    } else if (m_cap == Qt::RoundCap) {
        addArc(place, offset(direction, Left), -M_PI);
    }
}

void Stroker::addMiter(const QPointF &place, const QPointF &arrival, const QPointF &departure, Side side)
{
    const double cosine = dot(arrival, departure);
    const double halfCosine = std::sqrt(qMax(0.0, (1 + cosine) / 2));
    add(place + offset(arrival, side));
    if (halfCosine * m_miterLimit >= 1) {
        add(place + tip(arrival, departure, side));
    } else if (m_join == Qt::MiterJoin) {
        const double rise = qMax(0.0, m_miterLimit - halfCosine) * m_halfWidth / std::sqrt((1 - cosine) / 2);
        add(place + offset(arrival, side) + arrival * rise);
        add(place + offset(departure, side) - departure * rise);
    }
    add(place + offset(departure, side));
}

void Stroker::addOuter(const Polyline::Point &before, const Polyline::Point &corner, Side side)
{
    const bool isSmall = dot(before.direction, corner.direction) >= m_stepCosine;
    if (corner.isSmooth && isSmall) {
        add(corner.place + tip(before.direction, corner.direction, side));
        return;
    }
    const QPointF arrival = corner.isSmooth ? before.direction : corner.arrival;
    const QPointF departure = corner.isSmooth ? corner.direction : corner.departure;
    if (corner.isSmooth || m_join == Qt::RoundJoin) {
        const double angle = std::atan2(qAbs(cross(arrival, departure)), dot(arrival, departure));
        addArc(corner.place, offset(arrival, side), -side * angle);
    } else if (m_join == Qt::BevelJoin) {
        add(corner.place + offset(arrival, side));
        add(corner.place + offset(departure, side));
    } else {
        addMiter(corner.place, arrival, departure, side);
    }
}

// The sides of both pieces go to their ends, and back to where they meet if they are long enough. Else each piece
// is painted whole.
void Stroker::addInner(const Polyline::Point &before, const Polyline::Point &corner, Side side)
{
    const double cosine = dot(before.direction, corner.direction);
    const double shorter = qMin(before.length, corner.length);
    const bool meets = 4 * m_halfWidth * m_halfWidth * (1 - cosine) <= shorter * shorter * (1 + cosine);
    if (!corner.isSmooth || !meets)
        add(corner.place + offset(before.direction, side));
    add(meets ? corner.place + tip(before.direction, corner.direction, side) : corner.place);
    if (!corner.isSmooth || !meets)
        add(corner.place + offset(corner.direction, side));
}

void Stroker::addCorner(const Polyline::Point &before, const Polyline::Point &corner, Side side)
{
    const double turn = cross(before.direction, corner.direction) * side;
    // A line that turns back has its join on one side alone.
    if (turn < 0 || (turn == 0 && side == Left))
        addOuter(before, corner, side);
    else
        addInner(before, corner, side);
}

void Stroker::addOpenSide(const Polyline &line, Side side)
{
    const Polyline::Point &first = line.points.front();
    const Polyline::Point &last = line.points.back();
    add(first.place + offset(first.departure, side));
    for (size_t i = 1; i + 1 < line.points.size(); ++i)
        addCorner(line.points[i - 1], line.points[i], side);
    add(last.place + offset(last.arrival, side));
}

void Stroker::addClosedSide(const Polyline &line, Side side)
{
    addCorner(line.points.back(), line.points.front(), side);
    for (size_t i = 1; i < line.points.size(); ++i)
        addCorner(line.points[i - 1], line.points[i], side);
}

void Stroker::reverseFrom(size_t first)
{
    std::reverse(m_outline->points.begin() + std::ptrdiff_t(first), m_outline->points.end());
}

bool Stroker::add(const Polyline &line)
{
    const std::vector<QPointF> &points = m_outline->points;
    if (line.isClosed) {
        addClosedSide(line, Left);
        endPolygon();
        const size_t first = points.size();
        addClosedSide(line, Right);
        reverseFrom(first);
    } else {
        addOpenSide(line, Left);
        addCap(line.points.back().place, line.points.back().arrival);
        const size_t first = points.size();
        addOpenSide(line, Right);
        reverseFrom(first);
        addCap(line.points.front().place, -line.points.front().departure);
    }
    endPolygon();
    return points.size() <= m_mostPoints;
}

} // namespace

bool outlineStroke(const QPainterPath &path, const QPen &pen, const QTransform &toPainter,
                   const Flattening &flattening, StrokeOutline *outline)
{
    const Flattening ofPath{flattening.distance / largestScale(toPainter), flattening.mostPoints};
    Stroker stroker(pen, toPainter, ofPath, outline);
    const auto stroke = [&stroker](const Polyline &line) { return stroker.add(line); };
    const Dashes dashes(pen);
    if (dashes.isEmpty())
        return visitPolylines(path, ofPath, stroke);
    return visitPolylines(path, ofPath, [&](const Polyline &line) { return dashes.visit(line, stroke); });
}

} // namespace Svg
