#pragma once

#include "tree/message.h"
#include "tree/tree.h"

namespace Svg {

/// Reads SVG text, plain or compressed as gzip, into a tree. False when the text is not well-formed XML with an
/// "svg" root or exceeds a limit; the last message then gives reason and position.
bool readTree(const QByteArray &text, Tree *tree, Messages *messages);

} // namespace Svg
