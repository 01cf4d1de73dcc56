#pragma once

#include <QtCore/QRectF>
#include <QtCore/QVector>

class CBaseObject;
class QPainter;

namespace pagehost {
class ObjectRegistry;
class Page;
} // namespace pagehost

namespace board {

/// Paints what `area` (scene units) holds of the visible objects, bottom to top, stretched over `target` (painter
/// units) and clipped to it: as outlines where the object has a look as SVG, so that they stay sharp on paper, else
/// as pictures.
void drawObjects(const QVector<CBaseObject *> &objects, const QRectF &area,
                 const pagehost::ObjectRegistry &registry, QPainter *painter, const QRectF &target);
/// The same with a whole page and its background.
void drawPage(pagehost::Page *page, const pagehost::ObjectRegistry &registry, QPainter *painter,
              const QRectF &target);

} // namespace board
