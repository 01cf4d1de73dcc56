#pragma once

#include "tree/tree.h"

#include <QtCore/QVector>

namespace Svg {

/// The `glyph` elements that an `altGlyph` asks for (SVG 1.1 §10.14): the one that it refers to, or those of an
/// `altGlyphDef`, the first of its items whose glyphs are all there. Empty where its characters are to be set.
QVector<NodeIndex> alternateGlyphs(const Tree &tree, NodeIndex altGlyph);

} // namespace Svg
