#pragma once

#include "paint/mappingbudget.h"
#include "raster/flatoutline.h"
#include "scene/displayitem.h"

#include <QtGui/QImage>

#include <map>
#include <vector>

namespace Svg {

struct MappedItem;
using MappedItems = std::vector<MappedItem>;

/// An outline with its brush and pen, painter coordinates.
struct MappedShape
{
    QPainterPath path;
    /// When the mapped outline is not kept, the mapping that makes it again for painting. Else null.
    MappingPointer mapping;
    /// Of the mapped outlines, kept or not.
    int elementCount = 0;
    QBrush fill = Qt::NoBrush;
    QPen pen = Qt::NoPen;
    /// The pen in the units of the element, and its reach beyond the outline along the axes, painter units.
    QPen strokedWith = Qt::NoPen;
    QSizeF strokeReach{0, 0};
    /// Outline of the stroke, where the mapping distorts it so that no pen can draw it.
    QPainterPath strokePath;
    /// The outlines as painted in plain colours; null until then.
    mutable std::shared_ptr<const FlatShape> flat;
    /// Length of the outlines along the axes, painter units.
    double outlineLength = 0;
    /// Segments, and dashes, along the pen's way.
    double strokedPieces = 0;
    bool smooth = true;
    /// Whether painting a part of the item may give other pixels than painting all of it: steps along a gradient or
    /// a pattern are counted from the start of a row, and lines with hard edges or without round ends from where
    /// they enter the clip.
    bool isIndivisible = false;
};

/// A decoded image, scaled down where it is much larger than its place.
struct MappedPicture
{
    QImage image;
    /// The part that is shown, pixels, and its place in units that `toPainter` maps.
    QRectF source;
    QRectF target;
    QTransform toPainter;
    bool smooth = true;
};

/// A filter at its place.
struct MappedFilter
{
    /// From the units of the filtered element.
    QTransform toPainter;
    /// Contents of "feImage" primitives, by step and index of the primitive.
    std::map<std::pair<int, int>, MappedItems> images;
};

/// The effects of a group, painter coordinates.
struct MappedEffects
{
    const LayerEffects *source = nullptr;
    MappedFilter filter;
    QPainterPath region;
    /// Whether the region is a rectangle along the axes, and whether all of the content lies within.
    bool regionIsRect = false;
    bool holdsContent = false;
    MappedItems clip;
    MappedItems mask;
};

struct MappedGroup
{
    /// Null for nothing but opacity.
    std::unique_ptr<MappedEffects> effects;
};

/// One thing to paint, mapped to the painter.
struct MappedItem
{
    DisplayItem item;
    bool mapped = false;
    /// Whether another list took over the mapped content.
    bool takenOver = false;
    /// Bounds of everything that the item paints, painter coordinates.
    QRectF bounds;
    /// Of the same kind as the content of `item` once it is mapped.
    std::variant<MappedShape, MappedPicture, MappedGroup> content;
};

/// The items before mapping.
MappedItems unmapped(const DisplayItems &items);
/// Following items that belong to it; 0 except for groups.
int membersOf(const MappedItem &item);

} // namespace Svg
