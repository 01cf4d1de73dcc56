#pragma once

#include "paint/damage.h"
#include "paint/mappeditem.h"

namespace Svg {

/// Adds the parts in which an item looks different from the one that it replaces: for outlines of the same
/// structure, the surroundings of the segments that moved, else all of both.
void addDifference(const MappedItem &before, const MappedItem &after, Damage *damage);

} // namespace Svg
