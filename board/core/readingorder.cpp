#include "core/readingorder.h"

#include <algorithm>
#include <numeric>

namespace board {

namespace {

bool spans(const QRectF &box, double y)
{
    return box.top() <= y && y <= box.bottom();
}

bool areBesideEachOther(const QRectF &one, const QRectF &other)
{
    return spans(one, other.center().y()) && spans(other, one.center().y());
}

} // namespace

QVector<int> readingOrder(const QVector<QRectF> &boxes)
{
    QVector<int> order(boxes.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&](int one, int other) { return boxes.at(one).top() < boxes.at(other).top(); });
    auto row = order.begin();
    while (row != order.end()) {
        const int first = *row;
        const auto end = std::stable_partition(row, order.end(), [&](int index) {
            return index == first || areBesideEachOther(boxes.at(first), boxes.at(index));
        });
        std::stable_sort(row, end,
                         [&](int one, int other) { return boxes.at(one).left() < boxes.at(other).left(); });
        row = end;
    }
    return order;
}

} // namespace board
