#pragma once

#include "properties/computedstyle.h"
#include "resolve/filterprimitive.h"
#include "resolve/imageplacement.h"
#include "tree/tree.h"

namespace Svg {

/// Units of lengths and numbers of primitives: shares of the bounding box, or user units.
struct PrimitiveUnits
{
    bool ofBounds = false;
    QRectF bounds;
    QSizeF viewport;
};

/// Reads a filter primitive (Filter Effects 1 §9). Invalid values keep their defaults.
FilterPrimitive readPrimitive(const Tree &tree, NodeIndex node, const ComputedStyle &style,
                              const PrimitiveUnits &units);

/// The reference of an "feImage".
QString imageReference(const Node &node);
/// Fits the image into the subregion of its "feImage" (Filter Effects 1 §9.12).
QTransform filterImageFit(const Node &node, const ImageContent &image, const QRectF &region);

} // namespace Svg
