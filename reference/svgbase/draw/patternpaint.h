#pragma once

#include "document/document.h"

#include <QtGui/QBrush>

#include <memory>

namespace Svg {

struct DisplayItem;

/// The content of a pattern's tile, and where tiles stand.
struct PatternPaint
{
    /// What the tile was built from; the same gives the same tile.
    NodeIndex node = noNode;
    QRectF bounds;
    QSizeF viewport;
    double opacity = 1;

    /// The tile at the origin; pattern units.
    QRectF tile;
    /// From pattern units to those of the target.
    QTransform toTarget;
    /// In pattern units, not mapped.
    QVector<DisplayItem> items;
};

using PatternPointer = std::shared_ptr<const PatternPaint>;

/// A brush that paints the pattern in the units of its target, fine enough for a painter that these are mapped to
/// by `transform`.
QBrush patternBrush(const PatternPaint &pattern, const QTransform &transform);

} // namespace Svg
