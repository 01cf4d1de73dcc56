#pragma once

#include "paint/mappeditem.h"
#include "paint/paintbudget.h"

class QPainter;

namespace Svg {

/// Paints mapped items in order. The painter's world transform must be the identity, since items have painter
/// coordinates; its opacity applies to all of them. Items beyond the budget are left out or simplified.
void paintItems(QPainter *painter, const MappedItems &items, PaintBudget *budget);
/// The budget of a drawing, which grows with the painter's size.
PaintBudget paintBudget(const QPainter &painter);

} // namespace Svg
