#pragma once

#include "draw/displaylist.h"

class QPainter;

namespace Svg {

/// Paints mapped items in order. The painter's world transform must be the identity, since items hold coordinates
/// of the painter; its opacity counts for all of them. Returns what this took of what a painting may take; 1 or
/// more where something was left out or simplified, because there was no more.
double paintItems(QPainter *painter, const QVector<DisplayItem> &items);

} // namespace Svg
