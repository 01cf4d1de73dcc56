#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QRectF>
#include <QtCore/QVector>

class CBaseObject;

namespace pagehost {
class ObjectRegistry;
class Page;
} // namespace pagehost

namespace board {

/// An SVG document that shows what `area` (scene units) holds of the objects, bottom to top; its user units are
/// scene units. Empty when one of the visible objects has no look as SVG.
QByteArray svgOf(const QVector<CBaseObject *> &objects, const QRectF &area,
                 const pagehost::ObjectRegistry &registry);
/// The whole page with its background.
QByteArray svgOfPage(pagehost::Page *page, const pagehost::ObjectRegistry &registry);

} // namespace board
