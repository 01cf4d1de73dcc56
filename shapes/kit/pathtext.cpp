#include <kit/pathtext.h>

namespace shapekit {

namespace {

/// Enough for a thousandth of a pixel on the largest page, short enough to read.
constexpr int numberDigits = 10;

} // namespace

PathText &PathText::moveTo(QPointF point)
{
    append('M');
    append(point);
    return *this;
}

PathText &PathText::lineTo(QPointF point)
{
    append('L');
    append(point);
    return *this;
}

PathText &PathText::curveTo(QPointF control, QPointF end)
{
    append('Q');
    append(control);
    append(end);
    return *this;
}

PathText &PathText::quarterCircleTo(double radius, QPointF end)
{
    if (radius <= 0)
        return lineTo(end);
    append('A');
    append(QPointF(radius, radius));
    m_text += QStringLiteral("0 0 1 ");
    append(end);
    return *this;
}

PathText &PathText::close()
{
    append('Z');
    return *this;
}

void PathText::append(char command)
{
    m_text += QLatin1Char(command);
}

void PathText::append(double number)
{
    m_text += QString::number(number, 'g', numberDigits);
    m_text += QLatin1Char(' ');
}

void PathText::append(QPointF point)
{
    append(point.x());
    append(point.y());
}

} // namespace shapekit
