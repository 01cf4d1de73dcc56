#include "grammar/pathdata.h"

#include "grammar/inputlimits.h"
#include "grammar/numbers.h"
#include "grammar/pathbuilder.h"

#include <QtCore/QByteArray>

#include <algorithm>
#include <cstring>

namespace Svg {

namespace {

class PathReader
{
public:
    PathReader(const QByteArray &bytes, QVector<PathSegment> *segments)
        : m_cursor{bytes.constBegin(), bytes.constEnd()}
        , m_builder(segments)
    {
    }

    PathData read()
    {
        const char *begin = m_cursor.at;
        const bool complete = readCommands();
        PathData result = m_builder.finish();
        result.errorAt = complete ? -1 : m_cursor.at - begin;
        result.tooLong = m_tooLong;
        return result;
    }

private:
    bool readCommands();
    bool hasRoom();
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
    QPointF reflected(bool curveBefore) const;

    Cursor m_cursor;
    PathBuilder m_builder;
    /// The control point that a smooth segment reflects.
    QPointF m_control;
    char m_command = 0;
    /// The previous segment, in lower case: smooth segments depend on it.
    char m_previous = 0;
    bool m_tooLong = false;
};

char lowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
}

bool isCommand(char letter)
{
    return letter != '\0' && strchr("mlhvcsqtaz", lowerCase(letter));
}

bool PathReader::readPoint(bool relative, QPointF *point)
{
    Cursor probe = m_cursor;
    double x = 0;
    double y = 0;
    if (!readNextNumber(probe, &x) || !readNextNumber(probe, &y))
        return false;
    *point = relative ? m_builder.current() + QPointF(x, y) : QPointF(x, y);
    if (!PathBuilder::isInRange(*point))
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
    return curveBefore ? m_builder.current() * 2 - m_control : m_builder.current();
}

bool PathReader::readMove(bool relative)
{
    QPointF point;
    if (!readPoint(relative, &point))
        return false;
    m_builder.moveTo(point);
    // Further pairs are lines (SVG 1.1 §8.3.2).
    m_command = relative ? 'l' : 'L';
    return true;
}

bool PathReader::readLine(bool relative)
{
    QPointF point;
    if (!readPoint(relative, &point))
        return false;
    m_builder.lineTo(point);
    return true;
}

bool PathReader::readHorizontal(bool relative)
{
    Cursor probe = m_cursor;
    double x = 0;
    if (!readNextNumber(probe, &x))
        return false;
    const QPointF point(relative ? m_builder.current().x() + x : x, m_builder.current().y());
    if (!PathBuilder::isInRange(point))
        return false;
    m_cursor = probe;
    m_builder.lineTo(point);
    return true;
}

bool PathReader::readVertical(bool relative)
{
    Cursor probe = m_cursor;
    double y = 0;
    if (!readNextNumber(probe, &y))
        return false;
    const QPointF point(m_builder.current().x(), relative ? m_builder.current().y() + y : y);
    if (!PathBuilder::isInRange(point))
        return false;
    m_cursor = probe;
    m_builder.lineTo(point);
    return true;
}

bool PathReader::readCubic(bool relative)
{
    QPointF first;
    QPointF second;
    QPointF point;
    if (!readPoint(relative, &first) || !readPoint(relative, &second) || !readPoint(relative, &point))
        return false;
    m_builder.cubicTo(first, second, point);
    m_control = second;
    return true;
}

bool PathReader::readSmoothCubic(bool relative)
{
    const QPointF first = reflected(m_previous == 'c' || m_previous == 's');
    QPointF second;
    QPointF point;
    if (!readPoint(relative, &second) || !readPoint(relative, &point))
        return false;
    m_builder.cubicTo(first, second, point);
    m_control = second;
    return true;
}

bool PathReader::readQuadratic(bool relative)
{
    QPointF control;
    QPointF point;
    if (!readPoint(relative, &control) || !readPoint(relative, &point))
        return false;
    m_builder.quadTo(control, point);
    m_control = control;
    return true;
}

bool PathReader::readSmoothQuadratic(bool relative)
{
    const QPointF control = reflected(m_previous == 'q' || m_previous == 't');
    QPointF point;
    // Reflected coordinates can double with every segment.
    if (!PathBuilder::isInRange(control) || !readPoint(relative, &point))
        return false;
    m_builder.quadTo(control, point);
    m_control = control;
    return true;
}

bool PathReader::readArc(bool relative)
{
    Arc arc;
    arc.from = m_builder.current();
    if (!readNextNumber(m_cursor, &arc.rx) || !readNextNumber(m_cursor, &arc.ry) ||
        !readNextNumber(m_cursor, &arc.rotation))
        return false;
    if (!readFlag(&arc.large) || !readFlag(&arc.sweep) || !readPoint(relative, &arc.to))
        return false;
    if (!PathBuilder::isInRange(QPointF(arc.rx, arc.ry)))
        return false;
    m_builder.arcTo(arc);
    return true;
}

bool PathReader::readSegment(char command, bool relative)
{
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

bool PathReader::hasRoom()
{
    m_tooLong = m_builder.isFull();
    return !m_tooLong;
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
        if (!hasRoom())
            return false;
        m_builder.begin(command);
        if (!readSegment(command, relative))
            return false;
        m_builder.end();
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
            if (!hasRoom())
                return false;
            m_builder.close();
            m_previous = 'z';
            continue;
        }
        m_command = letter;
        if (!readSegments())
            return false;
    }
}

QPointF pointAt(const QVector<double> &coordinates, int at)
{
    return QPointF(coordinates.at(at), coordinates.at(at + 1));
}

bool areInRange(const QVector<double> &coordinates, int from, int count)
{
    const auto isInRange = [](double value) { return qAbs(value) <= Limits::coordinate; };
    const auto begin = coordinates.begin() + from;
    return std::all_of(begin, begin + count, isInRange);
}

void addArc(PathBuilder *builder, const QVector<double> &coordinates, int at)
{
    Arc arc;
    arc.from = builder->current();
    arc.rx = coordinates.at(at);
    arc.ry = coordinates.at(at + 1);
    arc.rotation = coordinates.at(at + 2);
    arc.large = coordinates.at(at + 3) != 0;
    arc.sweep = coordinates.at(at + 4) != 0;
    arc.to = pointAt(coordinates, at + 5);
    builder->arcTo(arc);
}

void addSegment(PathBuilder *builder, char command, const QVector<double> &coordinates, int at)
{
    switch (command) {
    case 'M':
        builder->moveTo(pointAt(coordinates, at));
        break;
    case 'L':
        builder->lineTo(pointAt(coordinates, at));
        break;
    case 'C':
        builder->cubicTo(pointAt(coordinates, at), pointAt(coordinates, at + 2), pointAt(coordinates, at + 4));
        break;
    case 'Q':
        builder->quadTo(pointAt(coordinates, at), pointAt(coordinates, at + 2));
        break;
    default:
        addArc(builder, coordinates, at);
        break;
    }
}

} // namespace

int coordinateCount(char command)
{
    switch (command) {
    case 'M':
    case 'L':
        return 2;
    case 'C':
        return 6;
    case 'Q':
        return 4;
    case 'A':
        return 7;
    default:
        return 0;
    }
}

PathData pathDataOf(const PathValue &value, QVector<PathSegment> *segments)
{
    PathBuilder builder(segments);
    int at = 0;
    for (const char command : value.commands) {
        const int count = coordinateCount(command);
        if (builder.isFull() || !areInRange(value.coordinates, at, count))
            break;
        if (command == 'Z') {
            builder.close();
            continue;
        }
        builder.begin(char(command - 'A' + 'a'));
        addSegment(&builder, command, value.coordinates, at);
        builder.end();
        at += count;
    }
    return builder.finish();
}

QString pathText(const PathValue &value)
{
    QString text;
    int at = 0;
    for (const char command : value.commands) {
        text += QLatin1Char(command);
        for (const int end = at + coordinateCount(command); at < end; ++at)
            text += QLatin1Char(' ') + numberText(value.coordinates.at(at));
    }
    return text;
}

PathData parsePathData(QStringView text, QVector<PathSegment> *segments)
{
    return PathReader(text.toLatin1(), segments).read();
}

} // namespace Svg
