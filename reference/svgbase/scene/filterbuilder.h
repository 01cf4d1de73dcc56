#pragma once

#include "scene/buildcontext.h"
#include "scene/filter.h"

#include <memory>

namespace Svg {

/// The element that a filter is built for.
struct FilterTarget
{
    /// The bounding box of the filtered element and the viewport, its units.
    QRectF bounds;
    QSizeF viewport;
    QTransform toDocument;
    /// Facts of the filtered element, which has the "filter" property.
    const ComputedStyle &style;
    /// Its paint, if it is a single shape.
    QBrush fillPaint = Qt::NoBrush;
    QBrush strokePaint = Qt::NoBrush;
};

/// Result of building the filter of an element.
struct BuiltFilter
{
    /// False when the filter leaves nothing visible.
    bool drawn = true;
    /// Null when the element is drawn without a filter: for a list that refers to nothing or to another kind of
    /// element (Filter Effects 1 §5), or one that is too long.
    std::shared_ptr<const Filter> filter;
};

BuiltFilter buildFilter(BuildContext &context, const FilterTarget &target);

} // namespace Svg
