#pragma once

#include "animation/animatedvalue.h"

namespace Svg {

/// Path data as absolute moves, lines, curves and arcs, whatever commands it was written with, so that two paths of
/// the same structure can be told. A plain text when the data has an error.
AnimatedValue parsePathValue(const QString &text);
PathValue pathOf(const AnimatedValue &value);

} // namespace Svg
