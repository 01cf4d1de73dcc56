#pragma once

#include "draw/displaylist.h"

namespace Svg {

/// Maps an item's outline, fill and pen to the painter's coordinates.
void mapItem(DisplayItem *item, const QTransform &stretch, const QTransform &world);

} // namespace Svg
