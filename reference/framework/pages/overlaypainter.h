#pragma once

#include <pagehost/pagescene.h>

class QPainter;

namespace pagehost {

/// Frames and handles of the selected objects, in scene coordinates.
void paintOverlay(const Page &page, QPainter &painter, const Grip &hovered, bool framesOnly);
/// Bounds of paintOverlay(), scene coordinates.
QRectF overlayBounds(const Page &page);

} // namespace pagehost
