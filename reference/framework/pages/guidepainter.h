#pragma once

#include <pages/snapping.h>

class QPainter;

namespace pagehost {

class Page;

/// Guides of a drag, in scene coordinates; gaps and sizes with their lengths.
void paintGuides(QPainter &painter, const SnapGuides &guides, const Page &page);
/// Area to repaint for them, scene coordinates. `pixel` is a pixel of the view, scene units.
QRectF guideBounds(const SnapGuides &guides, double pixel);
/// Lines at this distance over the whole page.
void paintGrid(QPainter &painter, const Page &page, double distance);

} // namespace pagehost
