#pragma once

#include "properties/computedstyle.h"
#include "tree/tree.h"

namespace Svg {

/// The text of a computed property; empty for one that has no text here.
QString propertyText(const ComputedStyle &style, AttributeId property);
/// What an attribute amounts to that an element does not have: an empty text where that is nothing or 0.
QString defaultAttributeText(ElementKind kind, AttributeId attribute);

} // namespace Svg
