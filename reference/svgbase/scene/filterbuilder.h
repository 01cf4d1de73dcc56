#pragma once

#include "scene/buildcontext.h"
#include "scene/filter.h"

#include <memory>

namespace Svg {

/// Where a filter is built.
struct FilterTarget
{
    /// The bounding box of the filtered element and the viewport, its units.
    QRectF bounds;
    QSizeF viewport;
    QTransform toDocument;
    /// Of the filtered element, whose "filter" it says.
    const ComputedStyle &style;
    /// Its paint, if it is a single shape.
    QBrush fillPaint = Qt::NoBrush;
    QBrush strokePaint = Qt::NoBrush;
};

/// Result of building the filter of an element.
struct BuiltFilter
{
    /// False when the filter leaves nothing to see.
    bool drawn = true;
    /// Null when the element is drawn as if it had none: a list that refers to nothing or to another kind of
    /// element (Filter Effects 1 §5), or one that is too long.
    std::shared_ptr<const Filter> filter;
};

BuiltFilter buildFilter(BuildContext &context, const FilterTarget &target);

} // namespace Svg
