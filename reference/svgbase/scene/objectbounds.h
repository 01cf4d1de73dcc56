#pragma once

#include "scene/buildcontext.h"

namespace Svg {

/// The bounding box of an element's geometry with its children and without strokes (SVG 2 §8.10), in the units that
/// its clip path, mask and filter use: those of its children or its geometry, also where a view box has set these
/// (SVG 2 §8.6). Null without geometry.
QRectF objectBounds(BuildContext &context, NodeIndex node, const FactsPointer &facts);

} // namespace Svg
