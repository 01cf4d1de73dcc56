#pragma once

#include "tree/tree.h"

namespace Svg {

/// Whether the conditional attributes of an element, "requiredFeatures", "requiredExtensions" and "systemLanguage",
/// allow it to be drawn (SVG 1.1 §5.8). The language is that of the program's locale.
bool passesConditions(const Node &node);

} // namespace Svg
