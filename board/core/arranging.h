#pragma once

#include <QtCore/QVector>
#include <QtCore/Qt>

class CBaseObject;

/// Arranging several objects by the boxes around them, turned as they are. Locked objects stay where they are, but
/// count. Each function is one undo step; false when nothing changes.
namespace board {

enum class Edge { Left, Center, Right, Top, Middle, Bottom };

/// Moves all to the outermost of these edges, or to the middle of the box around all.
bool align(const QVector<CBaseObject *> &objects, Edge edge);
/// Makes the gaps equal; the outermost two stay. Nothing for fewer than three.
bool distribute(const QVector<CBaseObject *> &objects, Qt::Orientation direction);
/// Gives all the size of the largest, each keeping its top left corner.
bool makeSameSize(const QVector<CBaseObject *> &objects);

} // namespace board
