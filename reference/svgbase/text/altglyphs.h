#pragma once

#include "tree/tree.h"

#include <QtCore/QVector>

namespace Svg {

/// The `glyph` elements that an `altGlyph` refers to (SVG 1.1 §10.14): its target, or those of an `altGlyphDef`,
/// the first of its items whose glyphs all exist. Empty when its characters are to be shown.
QVector<NodeIndex> alternateGlyphs(const Tree &tree, NodeIndex altGlyph);

} // namespace Svg
