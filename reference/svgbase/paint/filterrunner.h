#pragma once

#include "scene/filter.h"

#include <functional>

namespace Svg {

/// Requests of a filter to its painter.
struct FilterServices
{
    /// Whether the budget allows work on so many more pixels.
    std::function<bool(double)> takePixels;
    /// Adds (or subtracts) pixels of pictures held additionally; false when there are too many.
    std::function<bool(double)> holdPixels;
    /// The picture of an "feImage" over the filtered area, by step and index of the primitive; null without one.
    std::function<QImage(int, int)> paint;
};

/// Runs a filter on the picture of an element (Filter Effects 1 §8). `toPixels` maps the units of the filtered
/// element to the picture's pixels. False, with the picture in any state, when that takes too many pixels.
bool runFilter(const Filter &filter, const QTransform &toPixels, const FilterServices &services, QImage *picture);

} // namespace Svg
