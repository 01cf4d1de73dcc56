#pragma once

#include <QtCore/QVector>
#include <QtGui/QPainterPath>

namespace Svg {

/// Distances along a path, in the units of the path. Jumps to another subpath have no length.
class PathMeasure
{
public:
    /// A point of the path and its direction, degrees clockwise from the x axis (y pointing down).
    struct Place
    {
        QPointF point;
        double angle = 0;
    };

    explicit PathMeasure(const QPainterPath &path);

    double length() const { return m_pieces.isEmpty() ? 0 : m_pieces.constLast().end; }
    bool isEmpty() const { return m_path.elementCount() == 0; }
    /// The place at a distance from the start, limited to the path.
    Place at(double distance) const;
    /// Distance of every point given for the path: its first point and the end of each segment.
    const QVector<double> &vertices() const { return m_vertices; }

private:
    /// A line, or a part of a curve short enough to treat its speed as constant.
    struct Piece
    {
        int element;
        /// Index of the part in its element, and their number.
        qint16 part;
        qint16 parts;
        /// Distance of its end; it begins where the previous one ends.
        double end;

        double from() const { return double(part) / parts; }
        double to() const { return double(part + 1) / parts; }
    };

    void addLine(int element);
    void addCurve(int element);
    double beginOf(QVector<Piece>::const_iterator piece) const;
    QPointF point(const Piece &piece, double t) const;
    QPointF derivative(const Piece &piece, double t) const;
    double angleAt(const Piece &piece, double t) const;

    QPainterPath m_path;
    QVector<Piece> m_pieces;
    QVector<double> m_vertices;
};

} // namespace Svg
