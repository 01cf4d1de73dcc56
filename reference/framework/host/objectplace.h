#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>

class CPSRootObject;

/// Sets position and size of an object without its virtual operations: exactly the given values, unrecorded.

/// Position of the item's origin and rotation, in its parent's coordinates.
void placeItem(CPSRootObject &object, const QPointF &pos, double degrees);
void assignClientRect(CPSRootObject &object, const QRectF &rect);
/// The corner of the client rectangle stays.
void assignClientSize(CPSRootObject &object, const QSizeF &size);
/// Something that the bounding rectangle depends on has changed.
void refreshBounds(CPSRootObject &object);
