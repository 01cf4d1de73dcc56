#include "paint/listdifference.h"

#include "paint/pathdamage.h"

namespace Svg {

namespace {

/// When growing takes more passes over a list, all of it is painted.
constexpr int mostPasses = 8;

void takeOver(MappedItem *fresh, MappedItem *old)
{
    *fresh = std::move(*old);
    old->takenOver = true;
}

bool isPaintedWhole(const MappedItem &item)
{
    const auto *shape = std::get_if<MappedShape>(&item.content);
    return !shape || shape->isIndivisible;
}

} // namespace

QVector<int> takeOverMapped(MappedItems *fresh, MappedItems *old)
{
    const int size = int(fresh->size());
    const int shift = size - int(old->size());
    const int common = size - qMax(shift, 0);
    const auto isSame = [&](int inFresh, int inOld) {
        return hasSameOrigin((*fresh)[size_t(inFresh)].item, (*old)[size_t(inOld)].item);
    };
    int start = 0;
    while (start < common && isSame(start, start))
        ++start;
    int end = size;
    while (end > start && end - shift > start && isSame(end - 1, end - 1 - shift))
        --end;

    QVector<int> changed;
    for (int i = 0; i < size; ++i) {
        // Added or removed items lie between unchanged ones.
        const int before = i < end ? i : i - shift;
        if (i < start || i >= end || (shift == 0 && isSame(i, i)))
            takeOver(&(*fresh)[size_t(i)], &(*old)[size_t(before)]);
        else
            changed.append(i);
    }
    return changed;
}

void addDifference(const MappedItems &old, const MappedItems &fresh, const QVector<int> &changed, Damage *damage)
{
    if (old.size() == fresh.size()) {
        for (const int place : changed)
            addDifference(old[size_t(place)], fresh[size_t(place)], damage);
        return;
    }
    for (const int place : changed)
        damage->add(fresh[size_t(place)].bounds);
    for (const MappedItem &item : old)
        if (!item.takenOver)
            damage->add(item.bounds);
}

QRect grownToItems(const QRect &rect, const MappedItems &items, const QRect &within)
{
    QRect grown = rect;
    for (int pass = 0; pass < mostPasses; ++pass) {
        const QRect before = grown;
        for (size_t i = 0; i < items.size(); i += size_t(membersOf(items[i])) + 1) {
            if (!isPaintedWhole(items[i]))
                continue;
            const QRect reach = paintedPixels(items[i].bounds, within);
            grown = reach.intersects(grown) ? grown | reach : grown;
        }
        if (grown == before)
            return grown;
    }
    return within;
}

} // namespace Svg
