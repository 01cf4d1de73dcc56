#pragma once

#include <QtCore/QRect>
#include <QtCore/QVector>

namespace board {

/// Surroundings of a bar at the selection, in one coordinate system.
struct StyleBarSurroundings
{
    QRect room;               ///< that the bar stays in
    QRect frame;              ///< of the selection, with its handles
    QVector<QRect> selection; ///< boxes of the selected objects
    QVector<QRect> others;    ///< boxes of all other objects
};

/// The bar above the frame, or below it where only there it covers no object. Where neither is possible, the
/// selected objects are covered last.
QRect styleBarPlace(const QSize &bar, const StyleBarSurroundings &surroundings);

} // namespace board
