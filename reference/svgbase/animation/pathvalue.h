#pragma once

#include "animation/animatedvalue.h"

namespace Svg {

/// Path data as absolute moves, lines, curves and arcs, regardless of the original commands, so that paths of the
/// same structure can be recognised. A plain text when the data has an error.
AnimatedValue parsePathValue(const QString &text);
PathValue pathOf(const AnimatedValue &value);

} // namespace Svg
