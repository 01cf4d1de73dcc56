#pragma once

#include "geometry/shapegeometry.h"
#include "grammar/viewboxes.h"
#include "images/images.h"

namespace Svg {

/// Fits the content into a box; content without a size of its own is not scaled (SVG 2 §12.3).
QTransform contentFit(const ImageContent &content, const QRectF &box, const AspectRatio &ratio);

/// Where an "image" element shows its content.
struct ImagePlacement
{
    /// The box of the element, user units; empty when nothing is shown.
    QRectF box;
    /// Maps the content's box into it.
    QTransform fit;
};

/// Sizes that are absent or "auto" follow from the content (SVG 2 §7.8, §7.9).
ImagePlacement imagePlacement(const Node &node, const LengthReader &lengths, const ImageContent *content);

} // namespace Svg
