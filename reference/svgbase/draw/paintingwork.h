#pragma once

#include "draw/displaylist.h"

namespace Svg {

/// How far a mapped item's outline and its stroke's two sides go along the axes, painter units.
double paintedLength(const DisplayItem &item);
/// How many segments and dashes a mapped item's pen goes along.
double strokedPieces(const DisplayItem &item);
/// What painting a mapped item within an area takes, about in nanoseconds: for its outline where it is dense, for
/// its elements, and for the pixels that it fills.
double paintingWork(const DisplayItem &item, const QRect &area, double pixelRatio);

} // namespace Svg
