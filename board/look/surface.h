#pragma once

class QPainter;
class QRect;

namespace board {

/// Fills a rectangle as bars and drawers that float over the page look, in the theme's colours.
void paintSurface(QPainter *painter, const QRect &rect);

} // namespace board
