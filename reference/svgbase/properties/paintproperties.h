#pragma once

#include "properties/property.h"

namespace Svg {

/// Rows of painting and fonts, `AttributeId::Color` to `AttributeId::Visibility`, in that order.
const Property *paintProperties();

/// Whether a value of "stroke-dasharray" has more entries than the limit.
bool hasTooManyDashes(QStringView list);

} // namespace Svg
