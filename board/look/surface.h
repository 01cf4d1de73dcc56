#pragma once

class QMargins;
class QPainter;
class QRect;
class QWidget;

namespace board {

/// Fills a widget as bars and drawers that float over the page look, in the colours of its window.
void paintSurface(QPainter *painter, const QWidget &widget);

/// How far the shadow of a surface reaches beyond it, logical pixels.
QMargins surfaceShadowMargins();
/// Paints the shadow of a surface at `rect`; nothing where the theme has none.
void paintSurfaceShadow(QPainter *painter, const QRect &rect);

} // namespace board
