#pragma once

#include <QtCore/QPointF>
#include <QtCore/QSizeF>
#include <QtCore/QString>

class CBaseObject;

namespace pagehost {
class ObjectRegistry;
class Page;
} // namespace pagehost

namespace board {

/// Puts a finished object of a kind on top of `page`, as if a mouse had drawn it from `topLeft` (scene units) over
/// `size`, or had clicked there for an empty size. No undo step. Null, with the page untouched, for an unknown
/// kind. The object may be larger than asked for: kinds have a smallest size, some keep their aspect ratio.
CBaseObject *makeObject(pagehost::Page *page, const pagehost::ObjectRegistry &registry, const QString &kindId,
                        const QPointF &topLeft, const QSizeF &size = {});

/// Finishes an object in the creating state that belongs to no page, as a click at `topLeft` (scene units) of
/// `page` would; what comes out larger than the page is made smaller. Nothing else happens to the page.
void finishForPage(CBaseObject *object, pagehost::Page *page, const QPointF &topLeft);

} // namespace board
