#include "grammar/pathdata.h"

#include "grammar/arcs.h"
#include "grammar/inputlimits.h"
#include "grammar/numbers.h"

#include <QtCore/QByteArray>

#include <cstring>

namespace Svg {

namespace {

class PathReader
{
public:
    PathReader(const QByteArray &bytes, QVector<PathSegment> *segments)
        : m_cursor{bytes.constBegin(), bytes.constEnd()}
        , m_segmentList(segments)
    {
    }

    PathData read()
    {
        const char *begin = m_cursor.at;
        if (!readCommands())
            m_result.errorAt = m_cursor.at - begin;
        endOpenSubpath();
        return std::move(m_result);
    }

private:
    bool readCommands();
    bool readSegments();
    bool readSegment(char command, bool relative);
    bool readMove(bool relative);
    bool readLine(bool relative);
    bool readHorizontal(bool relative);
    bool readVertical(bool relative);
    bool readCubic(bool relative);
    bool readSmoothCubic(bool relative);
    bool readQuadratic(bool relative);
    bool readSmoothQuadratic(bool relative);
    bool readArc(bool relative);
    bool readPoint(bool relative, QPointF *point);
    bool readFlag(bool *flag);
    bool close();
    bool finishSubpath();
    void endOpenSubpath();
    void beginSubpath(const QPointF &start);
    void record(char command, const QPointF &from, int elementsBefore);
    bool isInRange(const QPointF &point) const;
    QPointF reflected(bool curveBefore) const;

    Cursor m_cursor;
    QVector<PathSegment> *m_segmentList;
    PathData m_result;
    QPointF m_current;
    QPointF m_start;
    /// The control point that a smooth segment reflects.
    QPointF m_control;
    char m_command = 0;
    /// The previous segment, in lower case: smooth segments depend on it.
    char m_previous = 0;
    int m_segments = 0;
    bool m_closed = false;
    /// The first element of the subpath.
    int m_firstElement = 0;
    /// Whether the subpath has a segment, possibly one without length.
    bool m_drawn = false;
};

char lowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
}

bool isCommand(char letter)
{
    return letter != '\0' && strchr("mlhvcsqtaz", lowerCase(letter));
}

bool PathReader::isInRange(const QPointF &point) const
{
    return qAbs(point.x()) <= Limits::coordinate && qAbs(point.y()) <= Limits::coordinate;
}

bool PathReader::readPoint(bool relative, QPointF *point)
{
    Cursor probe = m_cursor;
    double x = 0;
    double y = 0;
    if (!readNextNumber(probe, &x) || !readNextNumber(probe, &y))
        return false;
    *point = relative ? m_current + QPointF(x, y) : QPointF(x, y);
    if (!isInRange(*point))
        return false;
    m_cursor = probe;
    return true;
}

// The two flags of an arc are single digits that need no separator: "a1 1 0 0110 10" is well formed.
bool PathReader::readFlag(bool *flag)
{
    m_cursor.skipCommaSpace();
    if (m_cursor.peek() != '0' && m_cursor.peek() != '1')
        return false;
    *flag = *m_cursor.at++ == '1';
    return true;
}

QPointF PathReader::reflected(bool curveBefore) const
{
    return curveBefore ? m_current * 2 - m_control : m_current;
}

// A painter's path drops lines without length; a subpath of such lines still has caps (SVG 2 §13.5.5), which
// closing it would remove. True for such a subpath.
bool PathReader::finishSubpath()
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
void PathReader::endOpenSubpath()
{
    const QPainterPath &path = m_result.path;
    const int last = path.elementCount() - 1;
    const bool isDot = finishSubpath();
    if (!isDot && !m_closed && last > m_firstElement &&
        isAtSamePlace(path.elementAt(m_firstElement), path.elementAt(last)))
        m_result.openEnds.append(last);
}

void PathReader::beginSubpath(const QPointF &start)
{
    m_result.path.moveTo(start);
    m_firstElement = m_result.path.elementCount() - 1;
    m_closed = false;
}

bool PathReader::readMove(bool relative)
{
    QPointF point;
    if (!readPoint(relative, &point))
        return false;
    endOpenSubpath();
    beginSubpath(point);
    m_current = m_start = point;
    // Further pairs are lines (SVG 1.1 §8.3.2).
    m_command = relative ? 'l' : 'L';
    return true;
}

bool PathReader::readLine(bool relative)
{
    QPointF point;
    if (!readPoint(relative, &point))
        return false;
    m_result.path.lineTo(point);
    m_current = point;
    return true;
}

bool PathReader::readHorizontal(bool relative)
{
    Cursor probe = m_cursor;
    double x = 0;
    if (!readNextNumber(probe, &x))
        return false;
    const QPointF point(relative ? m_current.x() + x : x, m_current.y());
    if (!isInRange(point))
        return false;
    m_cursor = probe;
    m_result.path.lineTo(point);
    m_current = point;
    return true;
}

bool PathReader::readVertical(bool relative)
{
    Cursor probe = m_cursor;
    double y = 0;
    if (!readNextNumber(probe, &y))
        return false;
    const QPointF point(m_current.x(), relative ? m_current.y() + y : y);
    if (!isInRange(point))
        return false;
    m_cursor = probe;
    m_result.path.lineTo(point);
    m_current = point;
    return true;
}

bool PathReader::readCubic(bool relative)
{
    QPointF first;
    QPointF second;
    QPointF point;
    if (!readPoint(relative, &first) || !readPoint(relative, &second) || !readPoint(relative, &point))
        return false;
    m_result.path.cubicTo(first, second, point);
    m_control = second;
    m_current = point;
    return true;
}

bool PathReader::readSmoothCubic(bool relative)
{
    const QPointF first = reflected(m_previous == 'c' || m_previous == 's');
    QPointF second;
    QPointF point;
    if (!readPoint(relative, &second) || !readPoint(relative, &point))
        return false;
    m_result.path.cubicTo(first, second, point);
    m_control = second;
    m_current = point;
    return true;
}

bool PathReader::readQuadratic(bool relative)
{
    QPointF control;
    QPointF point;
    if (!readPoint(relative, &control) || !readPoint(relative, &point))
        return false;
    m_result.path.quadTo(control, point);
    m_control = control;
    m_current = point;
    return true;
}

bool PathReader::readSmoothQuadratic(bool relative)
{
    const QPointF control = reflected(m_previous == 'q' || m_previous == 't');
    QPointF point;
    // Reflected coordinates can double with every segment.
    if (!isInRange(control) || !readPoint(relative, &point))
        return false;
    m_result.path.quadTo(control, point);
    m_control = control;
    m_current = point;
    return true;
}

bool PathReader::readArc(bool relative)
{
    Arc arc;
    arc.from = m_current;
    if (!readNextNumber(m_cursor, &arc.rx) || !readNextNumber(m_cursor, &arc.ry) ||
        !readNextNumber(m_cursor, &arc.rotation))
        return false;
    if (!readFlag(&arc.large) || !readFlag(&arc.sweep) || !readPoint(relative, &arc.to))
        return false;
    if (!isInRange(QPointF(arc.rx, arc.ry)))
        return false;
    appendArc(m_result.path, arc);
    m_current = arc.to;
    return true;
}

PathSegment::Kind kindOf(char command)
{
    if (command == 'm')
        return PathSegment::Move;
    return strchr("lhv", command) ? PathSegment::Line : PathSegment::Curve;
}

// A painter's path drops segments without length and splits arcs.
void PathReader::record(char command, const QPointF &from, int elementsBefore)
{
    PathSegment segment{kindOf(command), from, from, m_current, m_current};
    const QPainterPath &path = m_result.path;
    int first = elementsBefore;
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

bool PathReader::close()
{
    if (m_segmentList)
        m_segmentList->append({PathSegment::Close, m_current, m_current, m_start, m_start});
    m_drawn = true;
    if (!finishSubpath())
        m_result.path.closeSubpath();
    m_current = m_start;
    m_closed = true;
    return true;
}

bool PathReader::readSegment(char command, bool relative)
{
    // A drawing command after a closing command starts a new subpath at the start of the last one.
    if (m_closed && command != 'm')
        beginSubpath(m_start);
    switch (command) {
    case 'm':
        return readMove(relative);
    case 'l':
        return readLine(relative);
    case 'h':
        return readHorizontal(relative);
    case 'v':
        return readVertical(relative);
    case 'c':
        return readCubic(relative);
    case 's':
        return readSmoothCubic(relative);
    case 'q':
        return readQuadratic(relative);
    case 't':
        return readSmoothQuadratic(relative);
    case 'a':
        return readArc(relative);
    default:
        return false;
    }
}

bool PathReader::readSegments()
{
    bool first = true;
    for (;;) {
        const char command = lowerCase(m_command);
        const bool relative = command == m_command;
        Cursor probe = m_cursor;
        const bool comma = probe.skipCommaSpace();
        const char next = probe.peek();
        const bool number = isDigit(next) || next == '.' || next == '-' || next == '+';
        if (!first && !number)
            return !comma;
        if (first && comma)
            return false;
        if (m_segments == Limits::pathSegments) {
            m_result.tooLong = true;
            return false;
        }
        const QPointF from = m_current;
        const int elementsBefore = m_result.path.elementCount();
        if (!readSegment(command, relative))
            return false;
        m_drawn = m_drawn || command != 'm';
        if (m_segmentList)
            record(command, from, elementsBefore);
        ++m_segments;
        m_previous = command;
        first = false;
    }
}

bool PathReader::readCommands()
{
    for (;;) {
        m_cursor.skipSpace();
        if (m_cursor.atEnd())
            return true;
        const char letter = *m_cursor.at;
        const bool isMove = lowerCase(letter) == 'm';
        if (m_previous == 0 ? !isMove : !isCommand(letter))
            return false;
        ++m_cursor.at;
        if (lowerCase(letter) == 'z') {
            if (m_segments == Limits::pathSegments) {
                m_result.tooLong = true;
                return false;
            }
            close();
            ++m_segments;
            m_previous = 'z';
            continue;
        }
        m_command = letter;
        if (!readSegments())
            return false;
    }
}

} // namespace

bool isAtSamePlace(const QPointF &a, const QPointF &b)
{
    constexpr double share = 1e-9;
    const double farthest = qMax(qMax(qAbs(a.x()), qAbs(a.y())), qMax(qAbs(b.x()), qAbs(b.y())));
    return (a - b).manhattanLength() <= share * farthest;
}

PathData parsePathData(QStringView text, QVector<PathSegment> *segments)
{
    return PathReader(text.toLatin1(), segments).read();
}

} // namespace Svg
