#pragma once

#include "tree/tree.h"

namespace Svg {

/// What an attribute amounts to that an element does not have: an empty text where that is nothing or 0.
QString defaultAttributeText(ElementKind kind, AttributeId attribute);

} // namespace Svg
