#pragma once

#include "draw/buildcontext.h"
#include "draw/displaylist.h"

namespace Svg {

/// Appends what an "image" element shows: a picture, or the drawing of another document.
void appendImage(BuildContext &context, NodeIndex node, const FactsPointer &facts, QVector<DisplayItem> *items);

} // namespace Svg
