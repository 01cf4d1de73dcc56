#include <pagehost/groups.h>

#include <framework/cbaseobject.h>

#include <pagehost/objectid.h>

#include <QtCore/QSet>

#include <algorithm>

namespace pagehost {

namespace {

constexpr int deepestLevel = 1000;

/// Indices of the groups by their numbers.
QHash<quint32, int> indicesOf(const ObjectGroups &groups)
{
    QHash<quint32, int> indices;
    for (int index = 0; index < groups.size(); ++index)
        indices.insert(groups[index].number, index);
    return indices;
}

QHash<quint32, CBaseObject *> byNumber(const QVector<CBaseObject *> &objects)
{
    QHash<quint32, CBaseObject *> found;
    for (CBaseObject *object : objects) {
        const quint32 number = objectId(object);
        if (number != 0 && !found.contains(number))
            found.insert(number, object);
    }
    return found;
}

/// For each group its own index where it has at least two members that are there, else that of the group around it
/// that has; -1 for the page.
QVector<int> livingGroups(const ObjectGroups &groups, const QHash<quint32, CBaseObject *> &objects)
{
    const QHash<quint32, int> indices = indicesOf(groups);
    QVector<int> members(groups.size(), 0);
    for (int index = groups.size() - 1; index >= 0; --index) {
        const QVector<quint32> &numbers = groups[index].members;
        members[index] += int(std::count_if(numbers.begin(), numbers.end(),
                                            [&](quint32 number) { return objects.contains(number); }));
        const int parent = indices.value(groups[index].parent, -1);
        if (parent >= 0)
            members[parent] += std::min(members[index], 1);
    }
    QVector<int> living(groups.size(), -1);
    for (int index = 0; index < groups.size(); ++index) {
        const int parent = indices.value(groups[index].parent, -1);
        living[index] = members[index] >= 2 ? index : parent >= 0 ? living[parent] : -1;
    }
    return living;
}

} // namespace

ObjectGroups normalized(const ObjectGroups &groups)
{
    ObjectGroups result;
    QHash<quint32, int> depths;
    QSet<quint32> members{0};
    for (ObjectGroup group : groups) {
        if (group.number == 0 || depths.contains(group.number))
            continue;
        const int outerDepth = depths.value(group.parent, 0);
        if (outerDepth == 0 || outerDepth >= deepestLevel)
            group.parent = 0;
        depths.insert(group.number, group.parent == 0 ? 1 : outerDepth + 1);
        QVector<quint32> own;
        for (const quint32 member : qAsConst(group.members)) {
            if (!members.contains(member))
                own.append(member);
            members.insert(member);
        }
        group.members = own;
        result.append(group);
    }
    return result;
}

ObjectGroups renumbered(ObjectGroups groups, quint32 last)
{
    QHash<quint32, quint32> numbers{{0, 0}};
    for (ObjectGroup &group : groups) {
        numbers.insert(group.number, ++last);
        group.number = last;
        group.parent = numbers.value(group.parent);
    }
    return groups;
}

quint32 highestNumber(const ObjectGroups &groups)
{
    quint32 highest = 0;
    for (const ObjectGroup &group : groups)
        highest = std::max(highest, group.number);
    return highest;
}

Grouping::Grouping(const ObjectGroups &groups, const QVector<CBaseObject *> &objects)
    : m_objects(objects)
{
    if (groups.isEmpty())
        return;
    const QHash<quint32, CBaseObject *> present = byNumber(objects);
    const QVector<int> living = livingGroups(groups, present);
    const QHash<quint32, int> indices = indicesOf(groups);
    const auto livingNumber = [&](int index) {
        return index < 0 || living[index] < 0 ? 0 : groups[living[index]].number;
    };
    for (int index = 0; index < groups.size(); ++index) {
        for (const quint32 member : groups[index].members)
            if (CBaseObject *object = present.value(member))
                m_innermost.insert(object, livingNumber(index));
        if (living[index] != index)
            continue;
        m_indices.insert(groups[index].number, m_groups.size());
        const quint32 parent = livingNumber(indices.value(groups[index].parent, -1));
        m_groups.append({groups[index].number, parent, groups[index].name, {}});
    }
    for (const CBaseObject *object : objects)
        if (const quint32 group = groupOf(object))
            m_groups[m_indices.value(group)].members.append(objectId(object));
}

QString Grouping::nameOf(quint32 group) const
{
    return contains(group) ? m_groups[m_indices.value(group)].name : QString();
}

quint32 Grouping::parentOf(quint32 group) const
{
    return contains(group) ? m_groups[m_indices.value(group)].parent : 0;
}

bool Grouping::holds(quint32 group, const CBaseObject *object) const
{
    quint32 around = groupOf(object);
    while (around != group && around != 0)
        around = parentOf(around);
    return around == group;
}

QVector<CBaseObject *> Grouping::objectsOf(quint32 group) const
{
    QVector<CBaseObject *> objects;
    std::copy_if(m_objects.begin(), m_objects.end(), std::back_inserter(objects),
                 [&](const CBaseObject *object) { return holds(group, object); });
    return objects;
}

quint32 Grouping::unitOf(const CBaseObject *object, quint32 level) const
{
    quint32 unit = 0;
    for (quint32 group = groupOf(object); group != level && group != 0; group = parentOf(group))
        unit = group;
    return unit;
}

QVector<GroupUnit> Grouping::unitsOf(quint32 level) const
{
    QVector<GroupUnit> units;
    QHash<quint32, int> places;
    for (auto object = m_objects.rbegin(); object != m_objects.rend(); ++object) {
        if (!holds(level, *object))
            continue;
        const quint32 group = unitOf(*object, level);
        if (group != 0 && places.contains(group)) {
            units[places.value(group)].objects.append(*object);
            continue;
        }
        places.insert(group, units.size());
        units.append({group, {*object}});
    }
    std::reverse(units.begin(), units.end());
    for (GroupUnit &unit : units)
        std::reverse(unit.objects.begin(), unit.objects.end());
    return units;
}

quint32 Grouping::levelOf(const QVector<CBaseObject *> &objects) const
{
    quint32 level = objects.isEmpty() ? 0 : groupOf(objects.first());
    for (const CBaseObject *object : objects)
        while (!holds(level, object))
            level = parentOf(level);
    const QSet<CBaseObject *> given(objects.begin(), objects.end());
    while (level != 0 && objectsOf(level).size() == given.size())
        level = parentOf(level);
    return level;
}

QVector<GroupUnit> Grouping::unitsHolding(const QVector<CBaseObject *> &objects) const
{
    const QSet<CBaseObject *> wanted(objects.begin(), objects.end());
    QVector<GroupUnit> holding;
    const QVector<GroupUnit> units = unitsOf(levelOf(objects));
    std::copy_if(units.begin(), units.end(), std::back_inserter(holding), [&](const GroupUnit &unit) {
        return std::any_of(unit.objects.begin(), unit.objects.end(),
                           [&](CBaseObject *object) { return wanted.contains(object); });
    });
    return holding;
}

} // namespace pagehost
