#pragma once

#include <QtCore/QPoint>
#include <QtCore/QVector>
#include <QtGui/QPainterPath>
#include <QtGui/QPen>
#include <QtGui/QTransform>

namespace Svg {

/// Parts of a pixel that points of flat outlines are counted in, along each axis.
constexpr int subpixels = 256;

/// An outline as closed polygons, painter coordinates in parts of a pixel.
struct FlatOutline
{
    QVector<QPoint> points;
    /// Behind the last point of each polygon.
    QVector<int> ends;
    Qt::FillRule fillRule = Qt::WindingFill;
};

/// Areas of a shape, in painting order.
struct FlatShape
{
    FlatOutline fill;
    FlatOutline stroke;
    /// The stroke that no pen can draw.
    FlatOutline distorted;
    /// Whether all of it could be made flat.
    bool isUsable = false;
};

/// Curves become lines that stray by less than can be seen. False, the outline then being of no use, where it
/// reaches too far from the origin or has too many points.
bool flatten(const QPainterPath &path, FlatOutline *outline);
/// The same for the area that a pen covers along a path, both in units that `toPainter` maps, which must be a
/// mapping of the plane.
bool flattenStroke(const QPainterPath &path, const QPen &pen, const QTransform &toPainter, FlatOutline *outline);

} // namespace Svg
