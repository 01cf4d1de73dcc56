#include "grammar/pathbuilder.h"

#include "grammar/inputlimits.h"

#include <cstring>

namespace Svg {

namespace {

PathSegment::Kind kindOf(char command)
{
    if (command == 'm')
        return PathSegment::Move;
    return strchr("lhv", command) ? PathSegment::Line : PathSegment::Curve;
}

} // namespace

bool PathBuilder::isInRange(const QPointF &point)
{
    return qAbs(point.x()) <= Limits::coordinate && qAbs(point.y()) <= Limits::coordinate;
}

bool PathBuilder::isFull() const
{
    return m_segments == Limits::pathSegments;
}

// A painter's path drops lines without length; a subpath of such lines still has caps (SVG 2 §13.5.5), which
// closing it would remove. True for such a subpath.
bool PathBuilder::finishSubpath()
{
    QPainterPath &path = m_result.path;
    const int count = path.elementCount();
    const bool isDot = m_drawn && count > 0 && path.elementAt(count - 1).isMoveTo();
    if (isDot)
        path.lineTo(path.currentPosition() + QPointF(dotLength, 0));
    m_drawn = false;
    return isDot;
}

// One that returns to its start has caps there unless it is closed (SVG 2 §13.5.4).
void PathBuilder::endOpenSubpath()
{
    const QPainterPath &path = m_result.path;
    const int last = path.elementCount() - 1;
    const bool isDot = finishSubpath();
    if (!isDot && !m_closed && last > m_firstElement &&
        isAtSamePlace(path.elementAt(m_firstElement), path.elementAt(last)))
        m_result.openEnds.append(last);
}

void PathBuilder::beginSubpath(const QPointF &start)
{
    m_result.path.moveTo(start);
    m_firstElement = m_result.path.elementCount() - 1;
    m_closed = false;
}

// A drawing command after a closing command starts a new subpath at the start of the last one.
void PathBuilder::begin(char letter)
{
    m_letter = letter;
    m_from = m_current;
    m_elementsBefore = m_result.path.elementCount();
    if (m_closed && letter != 'm')
        beginSubpath(m_start);
}

void PathBuilder::moveTo(const QPointF &point)
{
    endOpenSubpath();
    beginSubpath(point);
    m_current = m_start = point;
}

void PathBuilder::lineTo(const QPointF &point)
{
    m_result.path.lineTo(point);
    m_current = point;
}

void PathBuilder::cubicTo(const QPointF &first, const QPointF &second, const QPointF &point)
{
    m_result.path.cubicTo(first, second, point);
    m_current = point;
}

void PathBuilder::quadTo(const QPointF &control, const QPointF &point)
{
    m_result.path.quadTo(control, point);
    m_current = point;
}

void PathBuilder::arcTo(const Arc &arc)
{
    appendArc(m_result.path, arc);
    m_current = arc.to;
}

void PathBuilder::end()
{
    m_drawn = m_drawn || m_letter != 'm';
    if (m_segmentList)
        record();
    ++m_segments;
}

// A painter's path drops segments without length and splits arcs.
void PathBuilder::record()
{
    PathSegment segment{kindOf(m_letter), m_from, m_from, m_current, m_current};
    const QPainterPath &path = m_result.path;
    int first = m_elementsBefore;
    while (first < path.elementCount() && path.elementAt(first).type != QPainterPath::CurveToElement)
        ++first;
    if (segment.kind == PathSegment::Curve && first < path.elementCount()) {
        segment.firstControl = path.elementAt(first);
        segment.lastControl = path.elementAt(path.elementCount() - 2);
    } else if (segment.kind == PathSegment::Curve) {
        segment.kind = PathSegment::Line;
    }
    m_segmentList->append(segment);
}

void PathBuilder::close()
{
    if (m_segmentList)
        m_segmentList->append({PathSegment::Close, m_current, m_current, m_start, m_start});
    m_drawn = true;
    if (!finishSubpath())
        m_result.path.closeSubpath();
    m_current = m_start;
    m_closed = true;
    ++m_segments;
}

PathData PathBuilder::finish()
{
    endOpenSubpath();
    return std::move(m_result);
}

bool isAtSamePlace(const QPointF &a, const QPointF &b)
{
    constexpr double share = 1e-9;
    const double farthest = qMax(qMax(qAbs(a.x()), qAbs(a.y())), qMax(qAbs(b.x()), qAbs(b.y())));
    return (a - b).manhattanLength() <= share * farthest;
}

} // namespace Svg
