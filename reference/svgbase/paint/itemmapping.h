#pragma once

#include "paint/displaylist.h"

namespace Svg {

/// Maps outlines, fills and pens to the painter's coordinates, as far as that is not done, and tells layers what
/// they cover.
void mapItems(QVector<DisplayItem> *items, const QTransform &stretch, const QTransform &world,
              MappingBudget *budget);

/// The mapped outline of a shape, whether it is kept or not.
QPainterPath mappedOutline(const DisplayItem &item);

} // namespace Svg
