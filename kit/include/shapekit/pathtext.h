#pragma once

#include <shapekit/shapekit_global.h>

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtCore/QVector>

#include <initializer_list>

class QPainterPath;

namespace shapekit {

/// Writes SVG path data (document units), command by command.
class SHAPEKIT_EXPORT PathText
{
public:
    /// Begins a part at a point.
    PathText &moveTo(QPointF point);
    /// A straight line to a point.
    PathText &lineTo(QPointF point);
    /// A quadratic curve to `end`.
    PathText &curveTo(QPointF control, QPointF end);
    /// A cubic curve to `end`.
    PathText &curveTo(QPointF control1, QPointF control2, QPointF end);
    /// An arc of a circle or of an ellipse whose axes lie along x and y; a straight line for a radius of 0 or less.
    PathText &arcTo(QSizeF radii, QPointF end, bool clockwise = true, bool large = false);
    /// The same of a circle.
    PathText &arcTo(double radius, QPointF end, bool clockwise = true, bool large = false);
    /// A straight line to the beginning of the part, joined there.
    PathText &close();

    /// @name Whole figures
    /// @{

    /// A line between two points.
    PathText &line(QPointF from, QPointF to);
    /// A closed line through these corners.
    PathText &polygon(std::initializer_list<QPointF> corners);
    /// The ellipse that touches the sides of the box.
    PathText &ellipse(const QRectF &box);
    /// A rectangle with round corners; a negative radius counts as 0.
    PathText &roundedRectangle(const QRectF &box, double radius);
    /// The graph of a function through at least two points, given from left to right: smooth, and level where it
    /// turns, so that it stays between its points.
    PathText &graph(const QVector<QPointF> &points);
    /// The outlines of text whose digits have that height, centred on a point.
    PathText &text(QPointF centre, const QString &text, double height);
    /// Letters of a font size on a line that begins at `start`, or lies with that part of its length before it.
    PathText &line(QPointF start, const QString &text, double fontSize, double partBefore);
    /// @}

    /// The commands so far, for an attribute "d".
    QString text() const { return m_text; }

private:
    PathText &outlines(const QPainterPath &letters, QPointF place, QPointF origin, double scale);
    void append(char command);
    void append(double number);
    void append(QPointF point);

    QString m_text;
};

} // namespace shapekit
