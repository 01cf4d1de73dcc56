#pragma once

#include "style/properties.h"

#include <QtCore/QStringList>

namespace Svg {

/// The style of an element: its parent's, its presentation attributes, its style attribute, in rising order of
/// rank. Declarations that were not accepted are reported through `rejected`, when given, by their values.
ComputedStyle cascade(const Attributes &attributes, const PropertyContext &context,
                      QStringList *rejected = nullptr);

} // namespace Svg
