#pragma once

#include <QtCore/QPoint>
#include <QtCore/QVector>
#include <QtGui/QPainterPath>
#include <QtGui/QPen>
#include <QtGui/QTransform>

namespace Svg {

/// Subdivision of a pixel for the points of flat outlines, along each axis.
constexpr int subpixels = 256;

/// An outline as closed polygons, painter coordinates in parts of a pixel.
struct FlatOutline
{
    QVector<QPoint> points;
    /// After the last point of each polygon.
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
    /// Whether all of it could be flattened.
    bool isUsable = false;
};

/// Replaces curves by lines within an invisible tolerance. False, with an unusable outline, when it reaches too far
/// from the origin or has too many points.
bool flatten(const QPainterPath &path, FlatOutline *outline);
/// The same for the area that a pen covers along a path, both in units that `toPainter` maps, which must be a
/// mapping of the plane.
bool flattenStroke(const QPainterPath &path, const QPen &pen, const QTransform &toPainter, FlatOutline *outline);

} // namespace Svg
