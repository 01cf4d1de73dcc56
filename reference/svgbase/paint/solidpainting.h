#pragma once

#include "paint/mappeditem.h"
#include "raster/solidfill.h"

class QPainter;

namespace Svg {

/// The pixels that a painter paints on, where writing them directly gives the same result: they are those of a
/// picture, and the painter has at most a rectangle as its clip and composes normally. Its opacity is left to the
/// caller.
PixelTarget pixelTarget(const QPainter &painter);

/// Paints a shape whose fill and stroke are plain colours, with the same result as painters but several times
/// faster; an edge may differ by a step of 256. False, with nothing painted, for any other. `keep` tells whether
/// the item may keep its flat outlines.
bool paintSolid(const MappedItem &item, double opacity, const PixelTarget &target, bool keep);

} // namespace Svg
