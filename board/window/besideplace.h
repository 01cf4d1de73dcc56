#pragma once

#include <QtCore/QRect>

namespace board {

/// A rectangle of `size` beside `anchor`, on its side away from the `edge` of the window that it stands at, inside
/// of `room` where there is room.
QRect placeBeside(const QRect &anchor, Qt::Edge edge, const QSize &size, const QRect &room);

} // namespace board
