#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>

class CPSRootObject;

/// Place and size of an object past its virtual operations: exactly what is given, and nothing recorded.

/// Position of the item's origin and rotation, as its parent has them.
void placeItem(CPSRootObject &object, const QPointF &pos, double degrees);
void assignClientRect(CPSRootObject &object, const QRectF &rect);
/// The client rectangle's corner stays.
void assignClientSize(CPSRootObject &object, const QSizeF &size);
/// Something that the bounding rectangle depends on has changed.
void refreshBounds(CPSRootObject &object);
