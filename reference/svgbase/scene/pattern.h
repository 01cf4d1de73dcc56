#pragma once

#include "scene/displayitem.h"

namespace Svg {

/// The content of a pattern's tile, and the placement of tiles.
struct Pattern
{
    /// The origin of the tile; equal origins give equal tiles.
    NodeIndex node = noNode;
    QRectF bounds;
    QSizeF viewport;
    double opacity = 1;

    /// The tile at the origin; pattern units.
    QRectF tile;
    /// From pattern units to those of the target.
    QTransform toTarget;
    /// In pattern units.
    DisplayItems items;
};

} // namespace Svg
