#pragma once

#include <QtCore/qglobal.h>

#include <cmath>

/// The side of a control point, screen pixels, for a pen width: the width, limited to sizes that can be grabbed and
/// aren't huge.
constexpr int minControlPointPixels = 8;
constexpr int maxControlPointPixels = 50;

constexpr int controlPointPixels(int penWidth)
{
    return qMax(qMin(penWidth, maxControlPointPixels), minControlPointPixels);
}

/// Whether that many pixels have a finite, positive size at a zoom rate.
inline bool isUsableZoom(double zoom, int pixels)
{
    return std::isfinite(zoom) && zoom > 0 && std::isfinite(pixels / zoom);
}

/// The zoom rate if usable for that many pixels, else 1.
inline double usableZoom(double zoom, int pixels)
{
    return isUsableZoom(zoom, pixels) ? zoom : 1.0;
}
