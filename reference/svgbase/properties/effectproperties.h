#pragma once

#include "properties/property.h"

namespace Svg {

/// Rows of clip paths, masks, markers, filters and blending, `AttributeId::Clip` to `AttributeId::TextRendering`,
/// in that order.
const Property *effectProperties();

/// A blend mode of filters by its name; normal for any other name.
BlendMode blendModeOf(QStringView name);

} // namespace Svg
