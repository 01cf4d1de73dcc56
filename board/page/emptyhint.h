#pragma once

#include <QtCore/QRect>
#include <QtCore/QString>

class QPainter;

namespace board {

/// Text on an empty page for new users.
struct EmptyHint
{
    QString title;
    QString advice;
};

/// Paints the hint in the middle of `page` (the painter's coordinates, pixels); nothing when there is no room.
void paintEmptyHint(QPainter *painter, const QRect &page, const EmptyHint &hint);

} // namespace board
