#pragma once

#include "resolve/filterprimitive.h"
#include "scene/displayitem.h"

#include <QtCore/QHash>

namespace Svg {

/// A "filter" element, or a filter function, which has no region.
struct FilterStep
{
    std::optional<QRectF> region;
    QVector<FilterPrimitive> primitives;
    /// Contents of "feImage" primitives, by index of the primitive.
    QHash<int, DisplayItems> images;
};

/// The "filter" property of an element, resolved.
struct Filter
{
    QVector<FilterStep> steps;
    /// The paints for "FillPaint" and "StrokePaint", units of the filtered element.
    QBrush fillPaint = Qt::NoBrush;
    QBrush strokePaint = Qt::NoBrush;
    /// From the units of the filtered element.
    QTransform toDocument;
};

} // namespace Svg
