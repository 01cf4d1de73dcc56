#pragma once

#include "text/textcontent.h"

namespace Svg {

/// Gives the characters what "x", "y", "dx", "dy" and "rotate" of their elements say (SVG 2 §11.5.2): a list speaks
/// of the characters of its element in order, those of elements inside it included, which may say otherwise.
void resolvePositions(const Tree &tree, const QSizeF &viewport, TextContent *content);

} // namespace Svg
