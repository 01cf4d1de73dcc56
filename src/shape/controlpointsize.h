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

inline bool isUsableZoom(double zoom)
{
    return std::isfinite(zoom) && zoom > 0;
}

/// A zoom rate that sizes can be divided by: 1 stands in for one that is no zoom at all.
inline double usableZoom(double zoom)
{
    return isUsableZoom(zoom) ? zoom : 1.0;
}
