#pragma once

#include <QtGui/QPainterPath>

#include <initializer_list>

namespace board {

/// A pictogram on a square of 24 × 24 units.
struct IconShape
{
    QPainterPath lines;  ///< stroked
    QPainterPath areas;  ///< filled with the text colour
    QPainterPath shades; ///< filled with a pale text colour
};

/// Side of the square that the paths are drawn on.
constexpr double iconGrid = 24;

inline void addPolyline(QPainterPath &path, std::initializer_list<QPointF> points)
{
    path.moveTo(*points.begin());
    for (auto point = points.begin() + 1; point != points.end(); ++point)
        path.lineTo(*point);
}

inline void addPolygon(QPainterPath &path, std::initializer_list<QPointF> points)
{
    addPolyline(path, points);
    path.closeSubpath();
}

} // namespace board
