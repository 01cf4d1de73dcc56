#pragma once

#include "paint/mappeditem.h"
#include "paint/mappingbudget.h"

namespace Svg {

/// Provides patterns as brushes.
class PatternBrushes
{
public:
    virtual ~PatternBrushes() = default;
    /// A brush that paints the pattern in the units of its target, fine enough for a painter that `transform` maps
    /// these to. No brush when there is no room for another tile.
    virtual QBrush brush(const Pattern &pattern, const QTransform &transform) = 0;
};

/// Maps outlines, fills and pens to the painter's coordinates where that is still to be done, and measures groups.
void mapItems(MappedItems *items, const Mapping &mapping, MappingBudget *budget, PatternBrushes *patterns);

/// The mapped outline of a shape, whether it is kept or not.
QPainterPath mappedOutline(const MappedItem &item);

} // namespace Svg
