#pragma once

#include <pagehost/pagescene.h>

class QPainter;

namespace pagehost {

/// Frames and handles of the selected objects, in scene coordinates.
void paintOverlay(const Page &page, QPainter &painter, const Grip &hovered, bool framesOnly);
/// Area to repaint for paintOverlay(), scene coordinates.
QRectF overlayBounds(const Page &page);
/// Bounds of the frames and of the handles that are shown, scene coordinates.
QRectF frameBounds(const Page &page);

} // namespace pagehost
