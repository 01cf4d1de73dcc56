#include "geometry/polyline.h"

#include "geometry/curve.h"

#include <cmath>

namespace Svg {

namespace {

/// Pieces up to this share of the distance that curves may stray by have no direction of their own: they come from
/// rounding.
constexpr double shortestShare = 1e-8;

QPointF directionBetween(const QPointF &from, const QPointF &to)
{
    const QPointF way = to - from;
    return way / std::sqrt(way.x() * way.x() + way.y() * way.y());
}

// Control points that lie on an end say nothing about the direction there.
QPointF firstDirection(const QPointF &from, std::initializer_list<QPointF> targets)
{
    for (const QPointF &target : targets)
        if (target != from)
            return directionBetween(from, target);
    return QPointF();
}

class Flattener
{
public:
    Flattener(const Flattening &flattening, const std::function<bool(const Polyline &)> &visit)
        : m_flattening(flattening)
        , m_shortest(flattening.distance * shortestShare)
        , m_visit(visit)
    {
    }

    bool run(const QPainterPath &path);

private:
    bool endSubpath(const QPointF &end);
    void addLine(const QPointF &to);
    void addCurve(const Curve &curve);

    const Flattening &m_flattening;
    double m_shortest;
    const std::function<bool(const Polyline &)> &m_visit;
    Polyline m_line;
    QPointF m_start;
};

void Flattener::addLine(const QPointF &to)
{
    if (!m_line.lineTo(to, m_shortest))
        return;
    const size_t last = m_line.points.size() - 1;
    const QPointF direction = m_line.points[last - 1].direction;
    m_line.points[last - 1].departure = direction;
    m_line.points[last].arrival = direction;
}

void Flattener::addCurve(const Curve &curve)
{
    const size_t first = m_line.points.size() - 1;
    const int lines = curve.lineCount(m_flattening.distance);
    for (int i = 1; i <= lines; ++i)
        if (m_line.lineTo(i < lines ? curve.at(double(i) / lines) : curve.end, m_shortest))
            m_line.points.back().isSmooth = true;
    if (m_line.points.size() == first + 1)
        return;
    m_line.points[first].departure = firstDirection(curve.start, {curve.control1, curve.control2, curve.end});
    Polyline::Point &last = m_line.points.back();
    last.arrival = -firstDirection(curve.end, {curve.control2, curve.control1, curve.start});
    last.isSmooth = false;
}

// Painters have it that a subpath is closed when it ends where it began.
bool Flattener::endSubpath(const QPointF &end)
{
    if (m_line.points.size() < 2)
        return true;
    if (end == m_start)
        m_line.close();
    return m_line.points.size() < 2 || m_visit(m_line);
}

bool Flattener::run(const QPainterPath &path)
{
    const int count = path.elementCount();
    for (int i = 0; i < count; ++i) {
        const QPainterPath::Element &element = path.elementAt(i);
        if (element.type == QPainterPath::CurveToElement) {
            addCurve(Curve::ofElement(path, i));
            i += 2;
        } else if (element.type == QPainterPath::LineToElement) {
            addLine(element);
        } else {
            if (i > 0 && !endSubpath(path.elementAt(i - 1)))
                return false;
            m_start = element;
            m_line.start(m_start);
        }
        if (m_line.points.size() > size_t(m_flattening.mostPoints))
            return false;
    }
    return count == 0 || endSubpath(path.elementAt(count - 1));
}

} // namespace

void Polyline::clear()
{
    points.clear();
    isClosed = false;
}

void Polyline::start(const QPointF &place)
{
    clear();
    points.push_back({place, {}, {}, {}, 0, false});
}

bool Polyline::lineTo(const QPointF &place, double shortest)
{
    Point &from = points.back();
    const QPointF way = place - from.place;
    const double length = std::sqrt(way.x() * way.x() + way.y() * way.y());
    if (length <= shortest)
        return false;
    from.direction = way / length;
    from.length = length;
    points.push_back({place, {}, {}, {}, 0, false});
    return true;
}

void Polyline::extend(const Point &end, const QPointF &direction, double length)
{
    points.back().direction = direction;
    points.back().length = length;
    points.push_back(end);
}

void Polyline::close()
{
    points.front().arrival = points.back().arrival;
    points.pop_back();
    isClosed = true;
}

bool visitPolylines(const QPainterPath &path, const Flattening &flattening,
                    const std::function<bool(const Polyline &)> &visit)
{
    return Flattener(flattening, visit).run(path);
}

} // namespace Svg
