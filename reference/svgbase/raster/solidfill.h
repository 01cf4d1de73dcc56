#pragma once

#include "raster/flatoutline.h"

#include <QtCore/QRect>
#include <QtGui/QColor>
#include <QtGui/QImage>

namespace Svg {

/// Where colours are written directly to pixels: a picture of ARGB32, premultiplied or not.
struct PixelTarget
{
    /// Null where a painter has to do it.
    QImage *picture = nullptr;
    /// The painter coordinates of its first pixel.
    QPoint origin;
    /// Writable area, painter coordinates.
    QRect window;
};

/// Fills an outline with a colour within a part of the target's window, as painters would.
void fillSolid(const FlatOutline &outline, const QColor &color, double opacity, const QRect &window,
               const PixelTarget &target);

} // namespace Svg
