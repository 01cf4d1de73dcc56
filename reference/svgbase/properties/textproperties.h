#pragma once

#include "properties/properties.h"

namespace Svg {

/// Applies one of the properties of text that are no font's. A value that its grammar does not accept changes
/// nothing and gives false.
bool applyTextProperty(ComputedStyle &style, AttributeId property, QStringView value,
                       const PropertyContext &context);
/// Takes the parent's value of such a property.
void inheritTextProperty(ComputedStyle &style, AttributeId property, const ComputedStyle &parent);

/// Whether a style asks for lines along its text.
bool asksForLines(const ComputedStyle &style);
/// Lines that a group asks for run along all text in it, painted as the group says (CSS Text Decoration 3 §2).
/// False where `Limits::decoratingGroups` are around it already.
bool decorateTextBelow(ComputedStyle &group);

/// The values that count where an element has none of its own.
const TextStyle &textStyleOf(const ComputedStyle &style);
const InlineStyle &inlineStyleOf(const ComputedStyle &style);

} // namespace Svg
