#pragma once

#include "paint/mappeditem.h"
#include "paint/paintbudget.h"

class QPainter;

namespace Svg {

/// Paints mapped items in order. The painter's world transform must be the identity, since items hold coordinates
/// of the painter; its opacity counts for all of them. What the budget does not allow is left out or simplified.
void paintItems(QPainter *painter, const MappedItems &items, PaintBudget *budget);
/// What a drawing onto a painter may do, more for a larger one.
PaintBudget paintBudget(const QPainter &painter);

} // namespace Svg
