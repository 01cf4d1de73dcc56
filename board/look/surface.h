#pragma once

class QMargins;
class QPainter;
class QRect;

namespace board {

/// Fills a rectangle as bars and drawers that float over the page look, in the theme's colours.
void paintSurface(QPainter *painter, const QRect &rect);

/// How far the shadow of a surface reaches beyond it, logical pixels.
QMargins surfaceShadowMargins();
/// Paints the shadow of a surface at `rect`; nothing where the theme has none.
void paintSurfaceShadow(QPainter *painter, const QRect &rect);

} // namespace board
