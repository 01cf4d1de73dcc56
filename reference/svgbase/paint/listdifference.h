#pragma once

#include "paint/damage.h"
#include "paint/mappeditem.h"

namespace Svg {

/// Gives the items of a fresh list that were in the old one their mapped content. Returns the places of the others,
/// which have to be mapped.
QVector<int> takeOverMapped(MappedItems *fresh, MappedItems *old);
/// Adds the parts that look different in a list from the one before it, both of them mapped, `changed` being the
/// result of takeOverMapped().
void addDifference(const MappedItems &old, const MappedItems &fresh, const QVector<int> &changed, Damage *damage);
/// Grows a rectangle of pixels until it holds the whole of every item that it touches and whose pixels depend on
/// where its painting begins: groups, images, and shapes that are painted with a gradient or a pattern.
QRect grownToItems(const QRect &rect, const MappedItems &items, const QRect &within);

} // namespace Svg
