#pragma once

#include "paint/damage.h"
#include "paint/mappeditem.h"

namespace Svg {

/// Moves the mapped content of unchanged items to a fresh list. Returns the indexes of the others, which have to be
/// mapped.
QVector<int> takeOverMapped(MappedItems *fresh, MappedItems *old);
/// Adds the parts in which a list looks different from the previous one, both of them mapped, `changed` being the
/// result of takeOverMapped().
void addDifference(const MappedItems &old, const MappedItems &fresh, const QVector<int> &changed, Damage *damage);
/// Grows a rectangle of pixels until it contains every item that it touches and whose pixels depend on where its
/// painting begins: groups, images, and shapes that are painted with a gradient or a pattern.
QRect grownToItems(const QRect &rect, const MappedItems &items, const QRect &within);

} // namespace Svg
