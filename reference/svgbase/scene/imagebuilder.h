#pragma once

#include "scene/buildcontext.h"

namespace Svg {

/// Appends the content of an "image" element: a picture, or the drawing of another document.
void appendImage(BuildContext &context, NodeIndex node, const FactsPointer &facts, DisplayItems *items);
/// Appends the picture of a glyph, in the units of the item's facts; the item gives its origin and visible part.
void appendGlyphPicture(BuildContext &context, const DisplayItem &item, const PlacedPicture &picture,
                        DisplayItems *items);

} // namespace Svg
