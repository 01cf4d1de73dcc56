#pragma once

#include <QtCore/QRectF>
#include <QtCore/QVector>

namespace board {

/// The indices of boxes in the order in which they are read: from top to bottom, and those beside each other from
/// left to right. Two boxes are beside each other when each one's middle is between the other's top and bottom.
QVector<int> readingOrder(const QVector<QRectF> &boxes);

} // namespace board
