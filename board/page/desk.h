#pragma once

#include <QtCore/QRectF>

class QColor;
class QPainter;

namespace pagehost {
class Page;
} // namespace pagehost

namespace board {

/// Paints what is around a page, over `exposed` and a little more. All in scene coordinates; `zoom` is pixels per
/// scene unit.
void paintDesk(QPainter *painter, const QRectF &exposed, double zoom, const QColor &color);
/// Paints the page's shadow on the desk, and the paper that its background lies on.
void paintShadow(QPainter *painter, const QRectF &page, double zoom);
void paintPaper(QPainter *painter, const QRectF &page);
/// Fades the parts of objects that lie outside of their page.
void paintVeil(QPainter *painter, const QRectF &exposed, const pagehost::Page &page);

} // namespace board
