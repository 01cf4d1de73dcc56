#pragma once

#include <QtCore/qglobal.h>

#include <cmath>

/// The side of a control point, screen pixels, for a pen width: the width, but never too small to grab nor huge.
constexpr int minControlPointPixels = 8;
constexpr int maxControlPointPixels = 50;

constexpr int controlPointPixels(int penWidth)
{
    return qMax(qMin(penWidth, maxControlPointPixels), minControlPointPixels);
}

/// Whether that many pixels have a size, finite and positive, at a zoom rate.
inline bool isUsableZoom(double zoom, int pixels)
{
    return std::isfinite(zoom) && zoom > 0 && std::isfinite(pixels / zoom);
}

/// A zoom rate that so many pixels can be divided by: 1 stands in for one at which they have no size.
inline double usableZoom(double zoom, int pixels)
{
    return isUsableZoom(zoom, pixels) ? zoom : 1.0;
}
