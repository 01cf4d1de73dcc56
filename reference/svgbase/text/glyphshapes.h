#pragma once

#include "tree/tree.h"

#include <QtGui/QPainterPath>

namespace Svg {

/// The outlines of all shapes inside of a glyph together, in the units of its font, y pointing up. Their own paint
/// does not count.
QPainterPath glyphShapes(const Tree &tree, NodeIndex glyph);

} // namespace Svg
