#pragma once

#include "draw/buildcontext.h"

namespace Svg {

/// The coordinate system in which an element's clip path, mask and filter stand: the one that its children or its
/// geometry use, but for a nested "svg" the one around its view box.
QTransform effectSpace(const Node &node, const Facts &facts);

/// The bounding box of an element's geometry, children included and strokes left out (SVG 2 §8.10), in the units of
/// its effect space. Null without geometry.
QRectF objectBounds(BuildContext &context, NodeIndex node, const FactsPointer &facts);

} // namespace Svg
