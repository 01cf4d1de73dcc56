#pragma once

#include "grammar/basicshapes.h"
#include "properties/computedstyle.h"
#include "tree/tree.h"

namespace Svg {

/// Whether the content of a clip path is relative to the bounds of the clipped element.
bool isClipOfBounds(const Node &clipPath);

/// Whether the region of a mask or a filter, and its content or primitives, are relative to the bounds of the
/// element that refers to it.
struct EffectUnits
{
    bool regionOfBounds = true;
    bool contentOfBounds = false;
};
EffectUnits maskUnits(const Node &mask);
EffectUnits filterUnits(const Node &filter);

/// The box of the basic shape that the style clips with; empty without one.
std::optional<ShapeBox> clipShapeBox(const ComputedStyle &style);
/// The outline of that shape in its box; empty when nothing is left.
QPainterPath clipShape(const ComputedStyle &style, const QRectF &box);

} // namespace Svg
