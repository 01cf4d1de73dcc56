#pragma once

#include "tree/tree.h"

namespace Svg {

/// Value of an absent attribute: an empty text for nothing or 0.
QString defaultAttributeText(ElementKind kind, AttributeId attribute);

} // namespace Svg
