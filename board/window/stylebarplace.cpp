#include "window/stylebarplace.h"

#include <algorithm>

namespace board {

namespace {

constexpr int frameGap = 12;
/// Weights of what is covered; that of the selection outweighs everything else.
constexpr int othersWeight = 1;
constexpr int selectionWeight = 2;

bool coversAny(const QRect &bar, const QVector<QRect> &boxes)
{
    return std::any_of(boxes.begin(), boxes.end(), [&](const QRect &box) { return bar.intersects(box); });
}

QRect movedInto(const QRect &room, QRect bar)
{
    bar.moveLeft(qMax(room.left(), qMin(bar.left(), room.right() + 1 - bar.width())));
    bar.moveTop(qMax(room.top(), qMin(bar.top(), room.bottom() + 1 - bar.height())));
    return bar;
}

int costOf(const QRect &bar, const StyleBarSurroundings &surroundings)
{
    const bool coversSelection = bar.intersects(surroundings.frame) || coversAny(bar, surroundings.selection);
    return (coversSelection ? selectionWeight : 0) + (coversAny(bar, surroundings.others) ? othersWeight : 0);
}

} // namespace

QRect styleBarPlace(const QSize &bar, const StyleBarSurroundings &surroundings)
{
    const QRect &frame = surroundings.frame;
    const int left = frame.left() + (frame.width() - bar.width()) / 2;
    const QRect above(QPoint(left, frame.top() - frameGap - bar.height()), bar);
    const QRect below(QPoint(left, frame.bottom() + 1 + frameGap), bar);
    const QRect high = movedInto(surroundings.room, above);
    const QRect low = movedInto(surroundings.room, below);
    return costOf(low, surroundings) < costOf(high, surroundings) ? low : high;
}

} // namespace board
