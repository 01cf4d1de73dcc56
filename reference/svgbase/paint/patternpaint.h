#pragma once

#include "paint/mappingbudget.h"
#include "paint/paintbudget.h"
#include "resolve/settledtree.h"

#include <QtCore/QHash>
#include <QtGui/QBrush>
#include <QtGui/QImage>

#include <memory>

namespace Svg {

struct DisplayItem;
struct PatternPaint;

/// The pictures of tiles that a drawing made, one for each pattern and size, and what more of them may take.
struct PatternTiles
{
    QHash<QPair<const PatternPaint *, QPair<int, int>>, QImage> pictures;
    double pixelsLeft = Limits::patternsPixels;
    PaintBudget budget = PaintBudget::ofTiles();
    MappingBudget mapping;
    /// Whether a tile was left out.
    bool exhausted = false;
};

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
    /// Of all patterns of the drawing.
    std::shared_ptr<PatternTiles> tiles;
};

using PatternPointer = std::shared_ptr<const PatternPaint>;

/// A brush that paints the pattern in the units of its target, fine enough for a painter that these are mapped to
/// by `transform`. No brush when the drawing has no room for another tile.
QBrush patternBrush(const PatternPaint &pattern, const QTransform &transform);

} // namespace Svg
