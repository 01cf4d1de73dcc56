#pragma once

#include <QtCore/QSizeF>

namespace board {

/// The zoom at which a page is as large as it fits into a room of pixels.
double fittingRate(const QSizeF &page, const QSizeF &room);
/// The same for a page that is presented: one that would leave less than a pixel at its sides covers the room, so
/// that there is no line beside it.
double coveringRate(const QSizeF &page, const QSizeF &room);

} // namespace board
