#pragma once

#include "inputlimits.h"

namespace Svg {

/// How many elements the outlines of strokes may still have that a drawing makes itself, because no pen can draw
/// them.
struct MappingBudget
{
    double strokeElements = Limits::strokeElements;

    bool isUsedUp() const { return strokeElements <= 0; }
};

} // namespace Svg
