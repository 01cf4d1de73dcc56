#pragma once

#include <framework/framework_global.h>

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QVector>

class CBaseObject;

/// Operations on the selected objects of a page. Each change is one undo step; false when there is nothing to do.
namespace pagehost {

class ObjectRegistry;
class Page;

/// Of copies from their originals, scene units.
constexpr QPointF duplicateOffset(20, 20);

/// Moves the selected objects by `delta` (scene units).
FRAMEWORK_EXPORT bool nudgeSelection(Page *page, const QPointF &delta);
/// Deletes the selected objects; locked ones stay.
FRAMEWORK_EXPORT bool deleteSelection(Page *page);
/// Copies the selected objects by saving each and loading it into a new object of its kind, `offset` (scene units)
/// away, on top, in the group that the user has entered, and selected. Objects of unknown kinds are skipped.
/// Returns the copies.
FRAMEWORK_EXPORT QVector<CBaseObject *> duplicateSelection(Page *page, const ObjectRegistry *registry,
                                                           const QPointF &offset = duplicateOffset);
/// Selects every visible object.
FRAMEWORK_EXPORT void selectAll(Page *page);
/// Bounding rectangle of rotated objects, scene coordinates; null without objects.
FRAMEWORK_EXPORT QRectF boundsOf(const QVector<CBaseObject *> &objects);

/// A new object of the same kind and saved state, on no page. Null when the kind is unknown or the object could not
/// be saved or loaded. The caller owns it.
FRAMEWORK_EXPORT CBaseObject *cloneObject(CBaseObject *object, const ObjectRegistry *registry);

} // namespace pagehost
