#pragma once

#include "paint/damage.h"
#include "paint/displaylist.h"

namespace Svg {

/// Gives the items of a fresh list that were in the old one what was mapped of them. Returns the places of the
/// others, which have to be mapped.
QVector<int> takeOverMapped(QVector<DisplayItem> *fresh, QVector<DisplayItem> *old);
/// Adds what looks different in a list from the one before it, both of them mapped, `changed` being what
/// takeOverMapped() returned.
void addDifference(const QVector<DisplayItem> &old, const QVector<DisplayItem> &fresh, const QVector<int> &changed,
                   Damage *damage);

} // namespace Svg
