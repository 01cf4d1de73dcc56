#pragma once

#include "scene/filter.h"

#include <functional>

namespace Svg {

/// Requests of a filter to its painter.
struct FilterServices
{
    /// Whether so many pixels more may be worked on.
    std::function<bool(double)> takePixels;
    /// Counts so many pixels more, or less, of pictures that are held besides; false when these are too many.
    std::function<bool(double)> holdPixels;
    /// The picture over the filtered area of an "feImage", by step and place among its primitives; null when
    /// there is none.
    std::function<QImage(int, int)> paint;
};

/// Runs a filter over the picture of an element (Filter Effects 1 §8). `toPixels` maps the units of the filtered
/// element to the picture's pixels. False, with the picture in any state, when that takes too many pixels.
bool runFilter(const Filter &filter, const QTransform &toPixels, const FilterServices &services, QImage *picture);

} // namespace Svg
