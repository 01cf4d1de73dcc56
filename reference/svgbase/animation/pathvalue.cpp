#include "animation/pathvalue.h"

#include "grammar/inputlimits.h"
#include "grammar/numbers.h"

#include <QtCore/QPointF>

#include <cstring>

namespace Svg {

namespace {

constexpr char commandLetters[] = "MmLlHhVvCcSsQqTtAaZz";

class PathValueReader
{
public:
    explicit PathValueReader(const QByteArray &bytes)
        : m_cursor{bytes.constBegin(), bytes.constEnd()}
    {
    }

    /// False when the data has an error.
    bool read();

    AnimatedValue result;

private:
    bool readSegment();
    bool readNumbers(int count, double *numbers);
    bool readPoints(int count);
    bool readArc();
    bool readFlag(double *flag);
    void append(char command, std::initializer_list<QPointF> points);
    QPointF reflected(char command) const;
    QPointF base() const { return m_relative ? m_current : QPointF(); }

    Cursor m_cursor;
    char m_command = 0;
    bool m_relative = false;
    char m_previous = 0;
    QPointF m_current;
    QPointF m_start;
    QPointF m_control;
    QPointF m_points[3];
};

bool PathValueReader::readNumbers(int count, double *numbers)
{
    for (int i = 0; i < count; ++i)
        if (!readNextNumber(m_cursor, &numbers[i]))
            return false;
    return true;
}

bool PathValueReader::readPoints(int count)
{
    double numbers[6];
    if (!readNumbers(2 * count, numbers))
        return false;
    for (int i = 0; i < count; ++i)
        m_points[i] = base() + QPointF(numbers[2 * i], numbers[2 * i + 1]);
    return true;
}

bool PathValueReader::readFlag(double *flag)
{
    m_cursor.skipCommaSpace();
    if (m_cursor.peek() != '0' && m_cursor.peek() != '1')
        return false;
    *flag = *m_cursor.at++ == '1' ? 1 : 0;
    return true;
}

void PathValueReader::append(char command, std::initializer_list<QPointF> points)
{
    result.form += QLatin1Char(command);
    for (const QPointF &point : points)
        result.numbers << point.x() << point.y();
    m_current = *(points.end() - 1);
    m_previous = command;
}

bool PathValueReader::readArc()
{
    double radii[3];
    double flags[2];
    if (!readNumbers(3, radii) || !readFlag(&flags[0]) || !readFlag(&flags[1]) || !readPoints(1))
        return false;
    result.numbers << radii[0] << radii[1] << radii[2] << flags[0] << flags[1];
    append('A', {m_points[0]});
    return true;
}

// A smooth segment continues the previous curve, if that is of its own kind.
QPointF PathValueReader::reflected(char command) const
{
    return m_previous == command ? m_current * 2 - m_control : m_current;
}

bool PathValueReader::readSegment()
{
    double number = 0;
    switch (m_command) {
    case 'M':
        if (!readPoints(1))
            return false;
        append('M', {m_points[0]});
        m_start = m_current;
        m_command = 'L';
        return true;
    case 'L':
        if (!readPoints(1))
            return false;
        append('L', {m_points[0]});
        return true;
    case 'H':
        if (!readNumbers(1, &number))
            return false;
        append('L', {QPointF(base().x() + number, m_current.y())});
        return true;
    case 'V':
        if (!readNumbers(1, &number))
            return false;
        append('L', {QPointF(m_current.x(), base().y() + number)});
        return true;
    case 'C':
        if (!readPoints(3))
            return false;
        m_control = m_points[1];
        append('C', {m_points[0], m_points[1], m_points[2]});
        return true;
    case 'S': {
        const QPointF first = reflected('C');
        if (!readPoints(2))
            return false;
        m_control = m_points[0];
        append('C', {first, m_points[0], m_points[1]});
        return true;
    }
    case 'Q':
        if (!readPoints(2))
            return false;
        m_control = m_points[0];
        append('Q', {m_points[0], m_points[1]});
        return true;
    case 'T': {
        const QPointF control = reflected('Q');
        if (!readPoints(1))
            return false;
        m_control = control;
        append('Q', {control, m_points[0]});
        return true;
    }
    case 'A':
        return readArc();
    default:
        return false;
    }
}

bool PathValueReader::read()
{
    m_cursor.skipSpace();
    while (!m_cursor.atEnd()) {
        const char letter = m_cursor.peek();
        if (strchr(commandLetters, letter)) {
            ++m_cursor.at;
            m_relative = letter >= 'a';
            m_command = m_relative ? char(letter - 'a' + 'A') : letter;
        }
        const bool first = result.form.isEmpty();
        if ((first && m_command != 'M') || result.form.size() >= Limits::pathSegments)
            return false;
        if (m_command == 'Z' && strchr(commandLetters, letter)) {
            result.form += QLatin1Char('Z');
            m_current = m_start;
            m_previous = 'Z';
        } else if (!readSegment()) {
            return false;
        }
        m_cursor.skipCommaSpace();
    }
    return true;
}

} // namespace

AnimatedValue parsePathValue(const QString &text)
{
    const QByteArray bytes = text.toLatin1();
    PathValueReader reader(bytes);
    if (reader.read()) {
        reader.result.kind = AnimatedValue::Path;
        return reader.result;
    }
    return replacedValue(text);
}

// An interpolated flag is set unless it is 0 (SVG 1.1 §8.3.2).
PathValue pathOf(const AnimatedValue &value)
{
    PathValue path{value.form.toLatin1(), value.numbers};
    int at = 0;
    for (const char command : qAsConst(path.commands)) {
        if (command == 'A')
            for (const int flag : {at + 3, at + 4})
                path.coordinates[flag] = path.coordinates.at(flag) == 0 ? 0 : 1;
        at += coordinateCount(command);
    }
    return path;
}

} // namespace Svg
