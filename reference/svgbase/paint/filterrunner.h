#pragma once

#include "scene/filter.h"

#include <functional>

namespace Svg {

/// What a filter may ask of whoever paints.
struct FilterServices
{
    /// Whether so many pixels more may be worked on.
    std::function<bool(double)> takePixels;
    /// Counts so many pixels more, or less, of pictures that are held besides; false when these are too many.
    std::function<bool(double)> holdPixels;
    /// The picture of items over the filtered area, null when there is none to be had.
    std::function<QImage(const QVector<DisplayItem> &)> paint;
};

/// Runs a filter over the picture of an element (Filter Effects 1 §8). `toPixels` maps the units of the filtered
/// element to the picture's pixels. False, with the picture in any state, when that takes too many pixels.
bool runFilter(const Filter &filter, const QTransform &toPixels, const FilterServices &services, QImage *picture);

} // namespace Svg
