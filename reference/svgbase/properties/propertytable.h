#pragma once

#include "properties/property.h"

namespace Svg {

/// The row of a property; `isProperty(id)` must hold.
const Property &propertyOf(AttributeId id);

/// Applies text to a style. A value that the property's grammar rejects changes nothing and returns false.
bool applyProperty(ComputedStyle &style, AttributeId property, QStringView text, const PropertyContext &context);
/// The same for a value that may have no text.
bool assignProperty(ComputedStyle &style, AttributeId property, const AttributeValue &value,
                    const PropertyContext &context);

} // namespace Svg
