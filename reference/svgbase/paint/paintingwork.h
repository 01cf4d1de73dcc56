#pragma once

#include "paint/displaylist.h"

namespace Svg {

/// How far a mapped item's outline and its stroke's two sides go along the axes, painter units.
double paintedLength(const DisplayItem &item);
/// How many segments and dashes a mapped item's pen goes along.
double strokedPieces(const DisplayItem &item);
/// Estimated cost of painting a mapped item within an area, in nanoseconds.
struct PaintingWork
{
    /// For its elements, whatever its size.
    double elements = 0;
    /// For the pixels that its outline crosses and that it fills.
    double pixels = 0;
    /// For crossings that crowd in a row of pixels, where Qt's raster engine paints it.
    double crowding = 0;
};
PaintingWork paintingWork(const DisplayItem &item, const QRect &area, double pixelRatio);
/// The same for a picture.
double imageWork(const DisplayItem &item, const QRect &area, double pixelRatio);

} // namespace Svg
