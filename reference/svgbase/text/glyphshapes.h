#pragma once

#include "properties/computedstyle.h"
#include "tree/tree.h"

#include <QtGui/QPainterPath>

namespace Svg {

/// The outlines of all shapes inside of a glyph together, in the units of its font, y pointing up. Their own paint
/// is ignored; `font` is the style of the glyph's parent element.
QPainterPath glyphShapes(const Tree &tree, NodeIndex glyph, const ComputedStyle &font);

} // namespace Svg
