#include <pagehost/commands.h>

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>

#include <commands/pagecommand.h>
#include <pagehost/objectid.h>
#include <pagehost/page.h>

#include <QtCore/QSet>

#include <algorithm>
#include <functional>

namespace pagehost {

namespace {

QSet<CBaseObject *> toSet(const QVector<CBaseObject *> &objects)
{
    return {objects.begin(), objects.end()};
}

/// The objects that are on the page, in stacking order, without repetitions.
QVector<CBaseObject *> onPage(const Page &page, const QVector<CBaseObject *> &objects)
{
    QVector<CBaseObject *> found;
    const QSet<CBaseObject *> wanted = toSet(objects);
    const QVector<CBaseObject *> all = page.objects();
    std::copy_if(all.begin(), all.end(), std::back_inserter(found),
                 [&](CBaseObject *object) { return wanted.contains(object); });
    return found;
}

/// Removes objects from the page from the top, which moves the fewest others. Deselects them together, so that
/// listeners are notified once. `objects` in stacking order.
void takeOff(Page &page, const QVector<CBaseObject *> &objects)
{
    const QSet<CBaseObject *> going = toSet(objects);
    QVector<CBaseObject *> selected = page.selectedObjects();
    selected.erase(std::remove_if(selected.begin(), selected.end(),
                                  [&](CBaseObject *object) { return going.contains(object); }),
                   selected.end());
    page.select(selected);
    for (auto object = objects.rbegin(); object != objects.rend(); ++object)
        page.removeObject(*object);
}

/// Index directly above the objects of a group; of the page for 0.
int placeOnTop(const Page &page, quint32 group)
{
    return group == 0 ? page.objectCount() : page.indexOf(page.grouping().objectsOf(group).last()) + 1;
}

/// Makes new objects and groups, those from the index `first` on, members of the group.
void putInto(ObjectGroups &groups, int first, const QVector<CBaseObject *> &objects, quint32 group)
{
    QSet<quint32> grouped;
    for (int index = first; index < groups.size(); ++index) {
        if (groups.at(index).parent == 0)
            groups[index].parent = group;
        grouped.unite({groups.at(index).members.begin(), groups.at(index).members.end()});
    }
    const auto target =
        std::find_if(groups.begin(), groups.end(), [=](const ObjectGroup &one) { return one.number == group; });
    for (const CBaseObject *object : objects)
        if (!grouped.contains(objectId(object)))
            target->members.append(objectId(object));
}

class AddObjectsCommand : public PageCommand
{
public:
    /// `group`: 0 for the page.
    AddObjectsCommand(Page *page, const QVector<CBaseObject *> &objects, const ObjectGroups &groups, quint32 group)
        : PageCommand(page, objects, QStringLiteral("IDS_UNDO_ADD_OBJECTS"))
        , m_first(placeOnTop(*page, group))
        , m_before(page->groups())
        , m_after(m_before + renumbered(groups, highestNumber(m_before)))
    {
        if (group != 0)
            putInto(m_after, m_before.size(), objects, group);
    }

    void undo() override
    {
        takeOff(*page(), objects());
        page()->setGroups(m_before);
    }

protected:
    void apply() override
    {
        int index = m_first;
        for (CBaseObject *object : objects())
            page()->addObject(object, index++);
        page()->setGroups(m_after);
        page()->select(objects());
    }

private:
    int m_first; ///< index of the first object in stacking order
    ObjectGroups m_before;
    ObjectGroups m_after;
};

class RemoveObjectsCommand : public PageCommand
{
public:
    /// `objects` in stacking order.
    RemoveObjectsCommand(Page *page, const QVector<CBaseObject *> &objects)
        : PageCommand(page, objects, QStringLiteral("IDS_UNDO_REMOVE_OBJECTS"))
    {
        const QSet<CBaseObject *> removed = toSet(objects);
        const QVector<CBaseObject *> all = page->objects();
        for (int place = 0; place < all.size(); ++place)
            if (removed.contains(all[place]))
                m_places.append(place);
    }

    void undo() override
    {
        for (int i = 0; i < objects().size(); ++i)
            page()->addObject(objects()[i], m_places[i]);
        page()->select(objects());
    }

protected:
    void apply() override { takeOff(*page(), objects()); }

private:
    QVector<int> m_places;
};

class StackingCommand : public PageCommand
{
public:
    StackingCommand(Page *page, const QVector<CBaseObject *> &order)
        : PageCommand(page, page->objects(), QStringLiteral("IDS_UNDO_STACKING"))
        , m_order(order)
    {
    }

    void undo() override { page()->setStackingOrder(objects()); }

protected:
    void apply() override { page()->setStackingOrder(m_order); }

private:
    QVector<CBaseObject *> m_order;
};

using UnitTest = std::function<bool(const GroupUnit &)>;

/// Swaps every moving unit below one that does not move with it, from the top down.
void passForward(QVector<GroupUnit> &order, const UnitTest &isMoving)
{
    for (int i = order.size() - 2; i >= 0; --i)
        if (isMoving(order[i]) && !isMoving(order[i + 1]))
            order.swapItemsAt(i, i + 1);
}

QVector<GroupUnit> restacked(QVector<GroupUnit> order, StackingMove move, const UnitTest &isMoving)
{
    const auto stays = [&](const GroupUnit &unit) { return !isMoving(unit); };
    switch (move) {
    case StackingMove::ToFront:
        std::stable_partition(order.begin(), order.end(), stays);
        break;
    case StackingMove::ToBack:
        std::stable_partition(order.begin(), order.end(), isMoving);
        break;
    case StackingMove::Forward:
        passForward(order, isMoving);
        break;
    case StackingMove::Backward:
        std::reverse(order.begin(), order.end());
        passForward(order, isMoving);
        std::reverse(order.begin(), order.end());
        break;
    }
    return order;
}

/// The page's objects with these units at the places that objects of theirs have.
QVector<CBaseObject *> withUnits(QVector<CBaseObject *> objects, const QVector<GroupUnit> &units)
{
    QVector<CBaseObject *> order;
    for (const GroupUnit &unit : units)
        order += unit.objects;
    const QSet<CBaseObject *> placed = toSet(order);
    auto next = order.cbegin();
    for (CBaseObject *&object : objects)
        if (placed.contains(object))
            object = *next++;
    return objects;
}

} // namespace

bool addObjects(Page *page, const QVector<CBaseObject *> &objects, const ObjectGroups &groups, quint32 group)
{
    QVector<CBaseObject *> added;
    QSet<CBaseObject *> seen{nullptr};
    for (CBaseObject *object : objects) {
        if (!seen.contains(object) && !page->contains(object)) {
            added.append(object);
            seen.insert(object);
        }
    }
    if (added.isEmpty())
        return false;
    const bool isInGroup = page->document() && page->grouping().contains(group);
    if (isInGroup)
        ensureObjectIds(added, *page->document());
    CUndoRedo::GetInstance()->push(new AddObjectsCommand(page, added, groups, isInGroup ? group : 0));
    return true;
}

bool removeObjects(Page *page, const QVector<CBaseObject *> &objects)
{
    const QVector<CBaseObject *> removed = onPage(*page, objects);
    if (removed.isEmpty())
        return false;
    CUndoRedo::GetInstance()->push(new RemoveObjectsCommand(page, removed));
    return true;
}

bool restack(Page *page, const QVector<CBaseObject *> &objects, StackingMove move)
{
    const QSet<CBaseObject *> moving = toSet(objects);
    const auto isMoving = [&](const GroupUnit &unit) {
        return std::any_of(unit.objects.begin(), unit.objects.end(),
                           [&](CBaseObject *object) { return moving.contains(object); });
    };
    const Grouping grouping = page->grouping();
    const QVector<GroupUnit> before = grouping.unitsOf(grouping.levelOf(onPage(*page, objects)));
    const QVector<GroupUnit> after = restacked(before, move, isMoving);
    if (after == before)
        return false;
    const QVector<CBaseObject *> order = withUnits(page->objects(), after);
    CUndoRedo::GetInstance()->push(new StackingCommand(page, order));
    return true;
}

} // namespace pagehost
