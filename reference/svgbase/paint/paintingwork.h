#pragma once

#include "paint/mappeditem.h"

namespace Svg {

/// Length of a mapped outline and of its stroke's two sides along the axes, painter units.
double paintedLength(const MappedShape &shape);
/// Number of segments and dashes of a mapped shape's stroke.
double strokedPieces(const MappedShape &shape);
/// Estimated cost of painting a mapped shape within an area, in nanoseconds.
struct PaintingWork
{
    /// For its elements, whatever its size.
    double elements = 0;
    /// For the pixels that its outline crosses and that it fills.
    double pixels = 0;
    /// For crowded crossings in a row of pixels, when Qt's raster engine paints it.
    double crowding = 0;
};
PaintingWork paintingWork(const MappedItem &item, const QRect &area, double pixelRatio);
/// The same for a picture of the given bounds.
double imageWork(const QRectF &bounds, const QRect &area, double pixelRatio);

} // namespace Svg
