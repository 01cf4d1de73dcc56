#pragma once

#include <QtCore/QRectF>
#include <QtCore/QVector>
#include <QtCore/Qt>

class CBaseObject;

namespace pagehost {
class Page;
} // namespace pagehost

/// Arranging several objects and groups by the boxes around them, turned as they are. Locked ones stay where they
/// are, but count. Each function is one undo step; false when nothing changes.
namespace board {

/// An object, or the objects of a group.
using Unit = QVector<CBaseObject *>;

/// The objects with their groups, as far as these don't hold all of them.
QVector<Unit> unitsOf(const pagehost::Page &page, const QVector<CBaseObject *> &objects);

enum class Edge { Left, Center, Right, Top, Middle, Bottom };

/// Moves all to the outermost of these edges, or to the middle of the box around all.
bool align(const QVector<Unit> &units, Edge edge);
/// Makes the gaps equal; the outermost two stay. Nothing for fewer than three.
bool distribute(const QVector<Unit> &units, Qt::Orientation direction);
/// Moves each as little as brings it onto the page, to the middle along a side that is longer than the page.
bool bringBack(const QVector<Unit> &units, const QRectF &page);
/// Whether it hangs off the page.
bool isOff(const Unit &unit, const QRectF &page);
/// Gives all the size of the largest, each keeping its top left corner. The size of a group is that of the box
/// around it, which is scaled as a whole.
bool makeSameSize(const QVector<Unit> &units);

} // namespace board
