#pragma once

#include "text/textcontent.h"

namespace Svg {

/// Assigns "x", "y", "dx", "dy" and "rotate" of elements to the characters (SVG 2 §11.5.2): a list applies to the
/// characters of its element in order, including those of elements inside it, whose own lists take precedence.
void resolvePositions(const Tree &tree, const QSizeF &viewport, TextContent *content);

} // namespace Svg
