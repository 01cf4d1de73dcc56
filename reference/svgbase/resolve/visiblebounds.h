#pragma once

#include "resolve/settledtree.h"

namespace Svg {

/// Bounds of the visible geometry of a subtree, document units.
QRectF visibleBounds(SettledTree &document, NodeIndex top);

} // namespace Svg
