#include <pagehost/commands.h>
#include <pagehost/outline.h>

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>

#include <commands/pagecommand.h>
#include <pagehost/objectid.h>
#include <pagehost/page.h>

#include <QtCore/QSet>

#include <algorithm>

namespace pagehost {

namespace {

/// Sets groups and stacking order together: the members of a group lie directly above each other.
class GroupsCommand : public PageCommand
{
public:
    GroupsCommand(Page *page, const QString &textKey, const QVector<CBaseObject *> &order,
                  const ObjectGroups &groups)
        : PageCommand(page, page->objects(), textKey)
        , m_order(order)
        , m_before(page->groups())
        , m_after(groups)
    {
    }

    void undo() override { bring(objects(), m_before); }

protected:
    void apply() override { bring(m_order, m_after); }

private:
    void bring(const QVector<CBaseObject *> &order, const ObjectGroups &groups)
    {
        page()->setStackingOrder(order);
        page()->setGroups(groups);
    }

    QVector<CBaseObject *> m_order;
    ObjectGroups m_before;
    ObjectGroups m_after;
};

using Objects = QVector<CBaseObject *>;

Objects onPage(const Page &page, const Objects &objects)
{
    Objects found;
    std::copy_if(objects.begin(), objects.end(), std::back_inserter(found),
                 [&](CBaseObject *object) { return page.contains(object); });
    return found;
}

Objects objectsOf(const QVector<GroupUnit> &units)
{
    Objects objects;
    for (const GroupUnit &unit : units)
        objects += unit.objects;
    return objects;
}

/// The page's objects with these directly below the topmost of them.
Objects gathered(const Objects &all, const Objects &objects)
{
    const QSet<CBaseObject *> chosen(objects.begin(), objects.end());
    Objects order;
    int place = 0;
    for (CBaseObject *object : all)
        if (chosen.contains(object))
            place = order.size();
        else
            order.append(object);
    for (CBaseObject *object : objects)
        order.insert(place++, object);
    return order;
}

/// `units` become the members of a new group in `level`.
ObjectGroups withGroup(ObjectGroups groups, quint32 level, const QVector<GroupUnit> &units)
{
    ObjectGroup made;
    made.number = highestNumber(groups) + 1;
    made.parent = level;
    QSet<quint32> members;
    QSet<quint32> inner;
    for (const GroupUnit &unit : units) {
        if (unit.group != 0) {
            inner.insert(unit.group);
            continue;
        }
        made.members.append(objectId(unit.objects.first()));
        members.insert(made.members.last());
    }
    int place = 0;
    for (int index = 0; index < groups.size(); ++index) {
        ObjectGroup &group = groups[index];
        if (group.number == level)
            place = index + 1;
        if (inner.contains(group.number))
            group.parent = made.number;
        group.members.erase(std::remove_if(group.members.begin(), group.members.end(),
                                           [&](quint32 member) { return members.contains(member); }),
                            group.members.end());
    }
    groups.insert(place, made);
    return groups;
}

/// The members of the group belong to the one around it.
ObjectGroups withoutGroup(ObjectGroups groups, quint32 number)
{
    const auto removed = std::find_if(groups.begin(), groups.end(),
                                      [=](const ObjectGroup &group) { return group.number == number; });
    const ObjectGroup former = *removed;
    groups.erase(removed);
    for (ObjectGroup &group : groups) {
        if (group.number == former.parent)
            group.members += former.members;
        if (group.parent == number)
            group.parent = former.parent;
    }
    return groups;
}

/// Parents before the groups in them.
ObjectGroups inOrder(const ObjectGroups &groups)
{
    QHash<quint32, quint32> parents;
    for (const ObjectGroup &group : groups)
        parents.insert(group.number, group.parent);
    const auto depth = [&](quint32 group) {
        int steps = 0;
        for (; group != 0; group = parents.value(group))
            ++steps;
        return steps;
    };
    ObjectGroups ordered = groups;
    std::stable_sort(ordered.begin(), ordered.end(), [&](const ObjectGroup &one, const ObjectGroup &other) {
        return depth(one.number) < depth(other.number);
    });
    return ordered;
}

/// `units` become members of the group `target`, 0 for the page.
ObjectGroups withMembers(ObjectGroups groups, quint32 target, const QVector<GroupUnit> &units)
{
    QVector<quint32> members;
    QSet<quint32> inner;
    for (const GroupUnit &unit : units)
        unit.group == 0 ? members.append(objectId(unit.objects.first())) : (void)inner.insert(unit.group);
    for (ObjectGroup &group : groups) {
        if (inner.contains(group.number))
            group.parent = target;
        group.members.erase(std::remove_if(group.members.begin(), group.members.end(),
                                           [&](quint32 member) { return members.contains(member); }),
                            group.members.end());
        if (group.number == target)
            group.members += members;
    }
    return inOrder(groups);
}

bool isWithin(const Grouping &grouping, quint32 group, const QVector<GroupUnit> &units)
{
    const auto isUnit = [&](const GroupUnit &unit) { return unit.group == group; };
    for (; group != 0; group = grouping.parentOf(group))
        if (std::any_of(units.begin(), units.end(), isUnit))
            return true;
    return false;
}

/// Index among `rest`, which lack the moved objects, directly above the unit that holds `lower`, or above the next
/// one below it that stays; at the bottom of the level without one.
int placeAbove(const Grouping &grouping, quint32 level, const Objects &rest, CBaseObject *lower)
{
    const QVector<GroupUnit> units = grouping.unitsOf(level);
    const auto holdsLower = [&](const GroupUnit &unit) { return lower && unit.objects.contains(lower); };
    auto unit = std::find_if(units.rbegin(), units.rend(), holdsLower);
    for (; unit != units.rend(); ++unit)
        if (rest.contains(unit->objects.last()))
            return rest.indexOf(unit->objects.last()) + 1;
    const auto bottom =
        std::find_if(rest.begin(), rest.end(), [&](CBaseObject *object) { return grouping.holds(level, object); });
    return int(bottom - rest.begin());
}

} // namespace

bool groupObjects(Page *page, const QVector<CBaseObject *> &objects)
{
    const Document *document = page->document();
    const Grouping grouping = page->grouping();
    const Objects chosen = onPage(*page, objects);
    const quint32 level = grouping.levelOf(chosen);
    const QVector<GroupUnit> units = grouping.unitsHolding(chosen);
    const bool isLevelItself = level != 0 && units.size() == grouping.unitsOf(level).size();
    if (!document || units.size() < 2 || isLevelItself)
        return false;
    const Objects members = objectsOf(units);
    ensureObjectIds(members, *document);
    CUndoRedo::GetInstance()->push(new GroupsCommand(page, QStringLiteral("IDS_UNDO_GROUP"),
                                                     gathered(page->objects(), members),
                                                     withGroup(grouping.groups(), level, units)));
    return true;
}

bool ungroupObjects(Page *page, const QVector<CBaseObject *> &objects)
{
    const Grouping grouping = page->grouping();
    const Objects chosen = onPage(*page, objects);
    const QVector<GroupUnit> units = grouping.unitsHolding(chosen);
    ObjectGroups groups = grouping.groups();
    for (const GroupUnit &unit : units)
        if (unit.group != 0)
            groups = withoutGroup(groups, unit.group);
    if (groups == grouping.groups())
        return false;
    CUndoRedo::GetInstance()->push(
        new GroupsCommand(page, QStringLiteral("IDS_UNDO_UNGROUP"), page->objects(), groups));
    return true;
}

bool hasGroup(const Page &page, const QVector<CBaseObject *> &objects)
{
    const QVector<GroupUnit> units = page.grouping().unitsHolding(objects);
    return std::any_of(units.begin(), units.end(), [](const GroupUnit &unit) { return unit.group != 0; });
}

bool placeObjects(Page *page, const QVector<CBaseObject *> &objects, quint32 group, CBaseObject *lower)
{
    const Document *document = page->document();
    const Grouping grouping = page->grouping();
    const QVector<GroupUnit> units = grouping.unitsHolding(onPage(*page, objects));
    const bool isThere = group == 0 || grouping.contains(group);
    if (!document || units.isEmpty() || !isThere || isWithin(grouping, group, units))
        return false;
    const Objects moved = objectsOf(units);
    if (group != 0)
        ensureObjectIds(moved, *document);
    Objects order = page->objects();
    const QSet<CBaseObject *> chosen(moved.begin(), moved.end());
    order.erase(
        std::remove_if(order.begin(), order.end(), [&](CBaseObject *object) { return chosen.contains(object); }),
        order.end());
    int place = placeAbove(grouping, group, order, lower);
    for (CBaseObject *object : moved)
        order.insert(place++, object);
    const ObjectGroups groups = withMembers(grouping.groups(), group, units);
    if (order == page->objects() && groups == grouping.groups())
        return false;
    CUndoRedo::GetInstance()->push(new GroupsCommand(page, QStringLiteral("IDS_UNDO_STACKING"), order, groups));
    return true;
}

bool renameGroup(Page *page, quint32 group, const QString &name)
{
    ObjectGroups groups = page->grouping().groups();
    const auto renamed =
        std::find_if(groups.begin(), groups.end(), [=](const ObjectGroup &one) { return one.number == group; });
    if (renamed == groups.end() || renamed->name == name)
        return false;
    renamed->name = name;
    CUndoRedo::GetInstance()->push(
        new GroupsCommand(page, QStringLiteral("IDS_UNDO_RENAME"), page->objects(), groups));
    return true;
}

} // namespace pagehost
