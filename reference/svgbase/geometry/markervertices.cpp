#include "geometry/markervertices.h"

#include "geometry/shapegeometry.h"
#include "grammar/points.h"

#include <QtCore/QtMath>

#include <optional>

namespace Svg {

namespace {

constexpr double halfTurn = 180;
constexpr double fullTurn = 360;

using Direction = std::optional<QPointF>;

Direction between(const QPointF &from, const QPointF &to)
{
    return from == to ? Direction() : Direction(to - from);
}

Direction firstOf(const Direction &a, const Direction &b, const Direction &c)
{
    return a ? a : b ? b : c;
}

// A curve starts towards the first point that differs from its start.
Direction startDirection(const PathSegment &s)
{
    if (s.kind != PathSegment::Curve)
        return between(s.from, s.to);
    return firstOf(between(s.from, s.firstControl), between(s.from, s.lastControl), between(s.from, s.to));
}

Direction endDirection(const PathSegment &s)
{
    if (s.kind != PathSegment::Curve)
        return between(s.from, s.to);
    return firstOf(between(s.lastControl, s.to), between(s.firstControl, s.to), between(s.from, s.to));
}

double angleOf(const QPointF &direction)
{
    return qRadiansToDegrees(std::atan2(direction.y(), direction.x()));
}

double bisector(const QPointF &in, const QPointF &out)
{
    const double a = angleOf(in);
    double turn = angleOf(out) - a;
    if (turn > halfTurn)
        turn -= fullTurn;
    else if (turn < -halfTurn)
        turn += fullTurn;
    return a + turn / 2;
}

/// The segments of one subpath, its move first.
class Subpath
{
public:
    Subpath(const PathSegment *begin, const PathSegment *end)
        : m_begin(begin)
        , m_end(end)
    {
    }

    double angleAt(int vertex) const;

private:
    int count() const { return int(m_end - m_begin); }
    bool isClosed() const { return m_end[-1].kind == PathSegment::Close; }
    Direction incoming(int vertex) const;
    Direction outgoing(int vertex) const;
    Direction around(int segment, bool ends) const;

    const PathSegment *m_begin;
    const PathSegment *m_end;
};

// A segment without length takes the direction of the previous one, or else of the next one (SVG 2 §9.5.1).
Direction Subpath::around(int segment, bool ends) const
{
    const Direction own = ends ? endDirection(m_begin[segment]) : startDirection(m_begin[segment]);
    if (own)
        return own;
    for (int i = segment - 1; i > 0; --i)
        if (const Direction before = endDirection(m_begin[i]))
            return before;
    for (int i = segment + 1; i < count(); ++i)
        if (const Direction after = startDirection(m_begin[i]))
            return after;
    return Direction();
}

Direction Subpath::incoming(int vertex) const
{
    if (vertex > 0)
        return around(vertex, true);
    return isClosed() ? around(count() - 1, true) : Direction();
}

Direction Subpath::outgoing(int vertex) const
{
    if (vertex + 1 < count())
        return around(vertex + 1, false);
    return isClosed() && count() > 1 ? around(1, false) : Direction();
}

double Subpath::angleAt(int vertex) const
{
    const Direction in = incoming(vertex);
    const Direction out = outgoing(vertex);
    if (in && out)
        return bisector(*in, *out);
    if (in || out)
        return angleOf(in ? *in : *out);
    return 0;
}

// A subpath that continues after being closed starts where it was closed.
QVector<PathSegment> withMoves(const QVector<PathSegment> &segments, QVector<bool> *isAdded)
{
    QVector<PathSegment> result;
    for (const PathSegment &segment : segments) {
        const bool reopened =
            !result.isEmpty() && result.constLast().kind == PathSegment::Close && segment.kind != PathSegment::Move;
        if (reopened) {
            result.append({PathSegment::Move, segment.from, segment.from, segment.from, segment.from});
            isAdded->append(true);
        }
        result.append(segment);
        isAdded->append(false);
    }
    return result;
}

void appendVertices(const QVector<PathSegment> &segments, int begin, int end, const QVector<bool> &isAdded,
                    QVector<MarkerVertex> *vertices)
{
    const Subpath subpath(segments.constData() + begin, segments.constData() + end);
    for (int i = begin; i < end; ++i)
        if (!isAdded.at(i))
            vertices->append({MarkerVertex::Mid, segments.at(i).to, subpath.angleAt(i - begin)});
}

QVector<PathSegment> polySegments(const QPolygonF &points, bool closed)
{
    QVector<PathSegment> segments;
    for (int i = 0; i < points.size(); ++i) {
        const QPointF from = points.at(qMax(0, i - 1));
        segments.append({i == 0 ? PathSegment::Move : PathSegment::Line, from, from, points.at(i), points.at(i)});
    }
    if (closed && !points.isEmpty())
        segments.append({PathSegment::Close, points.last(), points.last(), points.first(), points.first()});
    return segments;
}

QPolygonF lineEnds(const Attributes &attributes, const LengthContext &context)
{
    const LengthReader lengths(attributes, context);
    QPolygonF ends;
    ends << QPointF(lengths.value(AttributeId::X1, Axis::Horizontal),
                    lengths.value(AttributeId::Y1, Axis::Vertical))
         << QPointF(lengths.value(AttributeId::X2, Axis::Horizontal),
                    lengths.value(AttributeId::Y2, Axis::Vertical));
    return ends;
}

} // namespace

QVector<MarkerVertex> verticesOf(const QVector<PathSegment> &given)
{
    QVector<bool> isAdded;
    const QVector<PathSegment> segments = withMoves(given, &isAdded);
    QVector<MarkerVertex> vertices;
    int begin = 0;
    for (int i = 1; i <= segments.size(); ++i) {
        if (i < segments.size() && segments.at(i).kind != PathSegment::Move)
            continue;
        appendVertices(segments, begin, i, isAdded, &vertices);
        begin = i;
    }
    if (vertices.size() == 1)
        vertices.append(vertices.first());
    if (!vertices.isEmpty()) {
        vertices.first().role = MarkerVertex::Start;
        vertices.last().role = MarkerVertex::End;
    }
    return vertices;
}

QVector<MarkerVertex> markerVertices(const Node &node, const LengthContext &context)
{
    switch (node.kind) {
    case ElementKind::Line:
        return verticesOf(polySegments(lineEnds(node.attributes, context), false));
    case ElementKind::Polyline:
    case ElementKind::Polygon:
        return verticesOf(polySegments(pointsOf(node.attributes.held(AttributeId::Points)).points,
                                       node.kind == ElementKind::Polygon));
    case ElementKind::Path: {
        QVector<PathSegment> segments;
        pathDataOf(node.attributes.held(AttributeId::D), &segments);
        return verticesOf(segments);
    }
    default:
        return {};
    }
}

} // namespace Svg
