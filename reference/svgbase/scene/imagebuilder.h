#pragma once

#include "paint/displaylist.h"
#include "scene/buildcontext.h"

namespace Svg {

/// Appends what an "image" element shows: a picture, or the drawing of another document.
void appendImage(BuildContext &context, NodeIndex node, const FactsPointer &facts, QVector<DisplayItem> *items);
/// Appends the picture of a glyph, in the units of the item's facts; the item says where it comes from and how much
/// of it shows.
void appendGlyphPicture(BuildContext &context, const DisplayItem &item, const PlacedPicture &picture,
                        QVector<DisplayItem> *items);

} // namespace Svg
