#pragma once

#include <QtCore/QVector>
#include <QtGui/QPainterPath>

namespace Svg {

/// Distances along a path, in the units of the path. Jumps to another subpath take no length.
class PathMeasure
{
public:
    /// A point of the path and the direction there, degrees clockwise from the x axis (y pointing down).
    struct Place
    {
        QPointF point;
        double angle = 0;
    };

    explicit PathMeasure(const QPainterPath &path);

    double length() const { return m_pieces.isEmpty() ? 0 : m_pieces.constLast().end; }
    bool isEmpty() const { return m_path.elementCount() == 0; }
    /// The place at a distance from the begin, held between both ends of the path.
    Place at(double distance) const;
    /// Distance of every point that the path was made through: its first point and the end of each segment.
    const QVector<double> &vertices() const { return m_vertices; }

private:
    /// A line, or a part of a curve that is short enough to take its length as even.
    struct Piece
    {
        int element;
        /// Which one of its element's parts, and of how many.
        qint16 part;
        qint16 parts;
        /// Distance of its end; it begins where the one before it ends.
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
