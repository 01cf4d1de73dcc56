#pragma once

#include "tree/tree.h"

namespace Svg {

/// Whether the conditional attributes of an element, "requiredFeatures", "requiredExtensions" and "systemLanguage",
/// allow it to be drawn (SVG 1.1 §5.8). The language is that of the program's locale.
bool passesConditions(const Node &node);
/// The one child of a "switch" that is drawn (SVG 1.1 §5.8.2); `noNode` for none.
NodeIndex firstAllowedChild(const Tree &tree, NodeIndex parent);

} // namespace Svg
