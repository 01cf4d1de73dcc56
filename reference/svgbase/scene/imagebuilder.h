#pragma once

#include "scene/buildcontext.h"

namespace Svg {

/// Appends what an "image" element shows: a picture, or the drawing of another document.
void appendImage(BuildContext &context, NodeIndex node, const FactsPointer &facts, DisplayItems *items);
/// Appends the picture of a glyph, in the units of the item's facts; the item says where it comes from and how much
/// of it shows.
void appendGlyphPicture(BuildContext &context, const DisplayItem &item, const PlacedPicture &picture,
                        DisplayItems *items);

} // namespace Svg
