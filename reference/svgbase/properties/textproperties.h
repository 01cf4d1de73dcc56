#pragma once

#include "properties/property.h"

namespace Svg {

/// Rows of text other than its font, `AttributeId::AlignmentBaseline` to `AttributeId::WritingMode`, in that order.
const Property *textProperties();

} // namespace Svg
