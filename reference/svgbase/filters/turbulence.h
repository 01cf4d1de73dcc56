#pragma once

#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtGui/QImage>
#include <QtGui/QTransform>

namespace Svg {

/// Parameters of an "feTurbulence" (Filter Effects 1 §9.21).
struct Turbulence
{
    /// Waves per user unit across and down.
    QSizeF frequency{0, 0};
    int octaves = 1;
    bool fractal = false;
    /// Whether the pattern is continuous across the edges of `tile`, user units.
    bool stitches = false;
    QRectF tile;
    /// Seed of the random number generator.
    double start = 0;
};

/// Fills a picture of premultiplied colours with the noise at its pixels' positions; `toUser` maps its pixels to
/// user units.
void fillWithTurbulence(QImage *picture, const Turbulence &turbulence, const QTransform &toUser);

} // namespace Svg
