#pragma once

#include <QtCore/QPointF>
#include <QtCore/QString>

namespace shapekit {

/// Writes SVG path data (document units), command by command.
class PathText
{
public:
    PathText &moveTo(QPointF point);
    PathText &lineTo(QPointF point);
    /// A quadratic curve to `end`.
    PathText &curveTo(QPointF control, QPointF end);
    /// A clockwise quarter circle to `end`; a straight line for a radius of 0 or less.
    PathText &quarterCircleTo(double radius, QPointF end);
    PathText &close();

    QString text() const { return m_text; }

private:
    void append(char command);
    void append(double number);
    void append(QPointF point);

    QString m_text;
};

} // namespace shapekit
