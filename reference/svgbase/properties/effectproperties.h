#pragma once

#include "properties/properties.h"

namespace Svg {

/// Applies one of the properties of clip paths, masks, markers, filters and blending. A value that its grammar does
/// not accept changes nothing and gives false.
bool applyEffectProperty(ComputedStyle &style, AttributeId property, QStringView value,
                         const PropertyContext &context);
/// Takes the parent's value of such a property.
void inheritEffectProperty(ComputedStyle &style, AttributeId property, const ComputedStyle &parent);
/// A blend mode by its name; normal for anything else.
BlendMode blendModeOf(QStringView name);

} // namespace Svg
