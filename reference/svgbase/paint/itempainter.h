#pragma once

#include "paint/mappeditem.h"
#include "paint/paintbudget.h"

class QPainter;

namespace Svg {

/// Paints mapped items in order. The painter's world transform must be the identity, since items hold coordinates
/// of the painter; its opacity counts for all of them. What the budget does not allow is left out or simplified.
void paintItems(QPainter *painter, const MappedItems &items, PaintBudget *budget);
/// The budget of a drawing, which grows with the painter's size.
PaintBudget paintBudget(const QPainter &painter);

} // namespace Svg
