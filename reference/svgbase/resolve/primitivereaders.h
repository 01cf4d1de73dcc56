#pragma once

#include "filters/convolution.h"
#include "filters/displacement.h"
#include "filters/lighting.h"
#include "filters/turbulence.h"
#include "resolve/filterattributes.h"

namespace Svg {

/// Readers of the primitives that have many attributes of their own. Values that break their grammar, or are out of
/// their range, leave their defaults.

Turbulence readTurbulence(const Attributes &attributes);
/// The light is the first child that is one.
Lighting readLighting(const Tree &tree, NodeIndex node, const ComputedStyle &style, const PrimitiveUnits &units);
/// A matrix that does not have as many numbers as "order" says leaves the input as it is.
Convolution readConvolution(const Attributes &attributes);
Displacement readDisplacement(const Attributes &attributes, const PrimitiveUnits &units);

} // namespace Svg
