#include "paint/listdifference.h"

#include "paint/pathdamage.h"

namespace Svg {

namespace {

// The same origin under the same mapping gives the same picture. A layer's end is counted from its beginning.
bool hasSameOrigin(const DisplayItem &a, int placeOfA, const DisplayItem &b, int placeOfB)
{
    return a.kind == b.kind && a.node == b.node && a.outline == b.outline && a.facts == b.facts &&
           a.override == b.override && a.opacity == b.opacity && a.controlCentre == b.controlCentre &&
           a.effects == b.effects && (a.kind != DisplayItem::BeginLayer || a.end - placeOfA == b.end - placeOfB) &&
           a.paintsFill == b.paintsFill && a.paintsStroke == b.paintsStroke && a.fillPattern == b.fillPattern &&
           a.strokePattern == b.strokePattern;
}

void takeOver(DisplayItem *fresh, DisplayItem *old)
{
    const int end = fresh->end;
    *fresh = std::move(*old);
    fresh->end = end;
    old->takenOver = true;
}

} // namespace

QVector<int> takeOverMapped(QVector<DisplayItem> *fresh, QVector<DisplayItem> *old)
{
    const int shift = fresh->size() - old->size();
    const int common = qMin(fresh->size(), old->size());
    const auto isSame = [&](int inFresh, int inOld) {
        return hasSameOrigin(fresh->at(inFresh), inFresh, old->at(inOld), inOld);
    };
    int start = 0;
    while (start < common && isSame(start, start))
        ++start;
    int end = fresh->size();
    while (end > start && end - shift > start && isSame(end - 1, end - 1 - shift))
        --end;

    QVector<int> changed;
    for (int i = 0; i < fresh->size(); ++i) {
        // What was added or taken away stands between what stayed in front of it and what stayed behind it.
        const int before = i < end ? i : i - shift;
        if (i < start || i >= end || (shift == 0 && isSame(i, i))) {
            takeOver(&(*fresh)[i], &(*old)[before]);
            continue;
        }
        changed.append(i);
    }
    return changed;
}

void addDifference(const QVector<DisplayItem> &old, const QVector<DisplayItem> &fresh, const QVector<int> &changed,
                   Damage *damage)
{
    if (old.size() == fresh.size()) {
        for (const int place : changed)
            addDifference(old.at(place), fresh.at(place), damage);
        return;
    }
    for (const int place : changed)
        damage->add(fresh.at(place).bounds);
    for (const DisplayItem &item : old) {
        if (!item.takenOver)
            damage->add(item.bounds);
    }
}

} // namespace Svg
