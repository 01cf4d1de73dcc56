#include "page/pagefit.h"

#include <QtCore/QtGlobal>

namespace board {

double fittingRate(const QSizeF &page, const QSizeF &room)
{
    return qMin(room.width() / page.width(), room.height() / page.height());
}

double coveringRate(const QSizeF &page, const QSizeF &room)
{
    const double fitting = fittingRate(page, room);
    const QSizeF left = room - page * fitting;
    const bool isCovered = left.width() < 1 && left.height() < 1;
    return isCovered ? qMax(room.width() / page.width(), room.height() / page.height()) : fitting;
}

} // namespace board
