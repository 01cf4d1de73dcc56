#pragma once

#include "paint/displaylist.h"

class QImage;
class QPainter;

namespace Svg {

/// Where colours are written straight into pixels: a picture of ARGB32, premultiplied or not.
struct PixelTarget
{
    /// Null where a painter has to do it.
    QImage *picture = nullptr;
    /// The painter coordinates of its first pixel.
    QPoint origin;
    /// What may be written, painter coordinates.
    QRect window;
};

/// The pixels that a painter paints on, where writing them behind its back gives what it would: they are those of a
/// picture, and it has at most a rectangle as its clip and mixes in the plain way. Its opacity is left to the
/// caller.
PixelTarget pixelTarget(const QPainter &painter);

/// Paints a shape whose fill and stroke are plain colours, with the result that painters have but several times
/// faster; an edge may differ by a step of 256. False, with nothing painted, for any other. `keep` says whether the
/// item may keep what is worked out for it.
bool paintSolid(const DisplayItem &item, double opacity, const PixelTarget &target, bool keep);

} // namespace Svg
