#pragma once

#include "draw/displaylist.h"

namespace Svg {

/// Maps outlines, fills and pens to the painter's coordinates, as far as that is not done, and tells layers what
/// they cover.
void mapItems(QVector<DisplayItem> *items, const QTransform &stretch, const QTransform &world,
              MappingBudget *budget);

} // namespace Svg
