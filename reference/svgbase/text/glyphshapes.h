#pragma once

#include "properties/computedstyle.h"
#include "tree/tree.h"

#include <QtGui/QPainterPath>

namespace Svg {

/// The outlines of all shapes inside of a glyph together, in the units of its font, y pointing up. Their own paint
/// does not count; `font` is the style of the element that the glyph is a child of.
QPainterPath glyphShapes(const Tree &tree, NodeIndex glyph, const ComputedStyle &font);

} // namespace Svg
