#pragma once

#include "draw/displaylist.h"

class QPainter;

namespace Svg {

/// Paints mapped items in order. The painter's world transform must be the identity, since items hold coordinates
/// of the painter; its opacity counts for all of them.
void paintItems(QPainter *painter, const QVector<DisplayItem> &items);

} // namespace Svg
