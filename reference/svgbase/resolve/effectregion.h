#pragma once

#include "tree/tree.h"

#include <QtCore/QRectF>

namespace Svg {

/// References of the region of a mask or a filter, user units.
struct RegionContext
{
    QRectF bounds;
    QSizeF viewport;
    double fontSize = 16;
};

/// The region by "x", "y", "width" and "height", by default the bounds extended by a tenth of their size on every
/// side (CSS Masking 1 §7.3, Filter Effects 1 §7). Numbers are shares of the bounds, or user units. Empty when a
/// size is not positive.
QRectF effectRegion(const Node &effect, bool ofBounds, const RegionContext &context);

} // namespace Svg
