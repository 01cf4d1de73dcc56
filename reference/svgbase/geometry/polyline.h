#pragma once

#include <QtCore/QPointF>
#include <QtGui/QPainterPath>

#include <functional>
#include <vector>

namespace Svg {

/// A subpath in straight pieces, for a pen to go along.
struct Polyline
{
    /// A point, and the piece from there to the next point. Directions have unit length.
    struct Point
    {
        QPointF place;
        /// Directions of the outline before and behind the point, which differ from those of the pieces at the ends
        /// of a curve.
        QPointF arrival;
        QPointF departure;
        QPointF direction;
        double length = 0;
        /// Whether it lies within a curve, where lines have no corner.
        bool isSmooth = false;
    };

    void clear();
    /// Begins at a place.
    void start(const QPointF &place);
    /// Adds a piece; false for one that is too short to have a direction.
    bool lineTo(const QPointF &place, double shortest);
    /// Adds a piece of known direction.
    void extend(const Point &end, const QPointF &direction, double length);
    /// Joins the last point with the first, which is at the same place.
    void close();
    /// The last point of a closed line has a piece, too.
    int pieceCount() const { return int(points.size()) - (isClosed ? 0 : 1); }

    std::vector<Point> points;
    bool isClosed = false;
};

/// Pieces that lines and curves are cut into.
struct Flattening
{
    /// Largest distance of a piece from its curve, and of an edge from a round join.
    double distance;
    int mostPoints;
};

/// Calls `visit` with each subpath that has a length. False as soon as it returns false, or where a subpath has too
/// many points.
bool visitPolylines(const QPainterPath &path, const Flattening &flattening,
                    const std::function<bool(const Polyline &)> &visit);

} // namespace Svg
