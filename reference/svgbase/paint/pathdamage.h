#pragma once

#include "paint/damage.h"
#include "paint/displaylist.h"

namespace Svg {

/// Adds what an item looks different in from the item that it takes the place of: where both are outlines of the
/// same making, the surroundings of the segments that moved, else all of both.
void addDifference(const DisplayItem &before, const DisplayItem &after, Damage *damage);

} // namespace Svg
