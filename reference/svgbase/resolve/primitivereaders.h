#pragma once

#include "filters/convolution.h"
#include "filters/displacement.h"
#include "filters/lighting.h"
#include "filters/turbulence.h"
#include "resolve/filterattributes.h"

namespace Svg {

/// Readers of the primitives with many attributes of their own. Values that are invalid or out of range keep their
/// defaults.

Turbulence readTurbulence(const Attributes &attributes);
/// The light is the first child of such a kind.
Lighting readLighting(const Tree &tree, NodeIndex node, const ComputedStyle &style, const PrimitiveUnits &units);
/// A matrix without exactly as many numbers as "order" requires leaves the input unchanged.
Convolution readConvolution(const Attributes &attributes);
Displacement readDisplacement(const Attributes &attributes, const PrimitiveUnits &units);

} // namespace Svg
