#pragma once

#include "images/images.h"
#include "resolve/styleoverride.h"
#include "tree/tree.h"

#include <QtCore/QVector>

#include <memory>
#include <optional>
#include <variant>

namespace Svg {

struct DisplayItem;
struct LayerEffects;
struct Pattern;
using PatternPointer = std::shared_ptr<const Pattern>;
/// Items in drawing order; a group precedes its members.
using DisplayItems = QVector<DisplayItem>;

/// An outline of an element with its fill and stroke.
struct ShapeItem
{
    StyleOverridePointer override;
    int outline = 0;
    /// Of a clip path: the outline is filled by the clip rule, whatever its paint.
    bool silhouette = false;
    /// Which of both is painted; the order may be the reverse of the painters'.
    bool paintsFill = true;
    bool paintsStroke = true;
    /// Replaces the brush; null where the outline's own paint is used.
    PatternPointer fillPattern;
    PatternPointer strokePattern;
};

/// The pixels of an image, fitted into its element.
struct PictureItem
{
    ImagePointer content;
    /// From pixels of the content to the units of the target, and from these to those of the element.
    QTransform fit;
    QTransform toElement;
    QRectF target;
};

/// Items that are painted as one picture.
struct GroupItem
{
    /// Null for nothing but opacity.
    std::shared_ptr<const LayerEffects> effects;
    /// Number of following items that belong to it, including those of groups within.
    int count = 0;
};

/// One thing to paint, in the units of its element.
struct DisplayItem
{
    /// The element that the item comes from.
    NodeIndex node = noNode;
    FactsPointer facts;
    /// Of a group, or of an item that is not painted into a group of its own.
    double opacity = 1;
    /// Of a part of a control point, which is counter-scaled about its centre; document units.
    std::optional<QPointF> controlCentre;
    std::variant<ShapeItem, std::shared_ptr<const PictureItem>, GroupItem> content;
};

/// Whether two items give the same picture under the same mapping.
bool hasSameOrigin(const DisplayItem &a, const DisplayItem &b);

/// The outline that a shape shows, with its pen and brush: with document-wide styling, and without unpainted parts.
/// Patterns are left to the painter.
Outline shownOutline(const DisplayItem &item, const ShapeItem &shape);

} // namespace Svg
