#include <pagehost/commands.h>

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>

#include <commands/pagecommand.h>
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

class AddObjectsCommand : public PageCommand
{
public:
    AddObjectsCommand(Page *page, const QVector<CBaseObject *> &objects)
        : PageCommand(page, objects, QStringLiteral("IDS_UNDO_ADD_OBJECTS"))
        , m_first(page->objectCount())
    {
    }

    void undo() override { takeOff(*page(), objects()); }

protected:
    void apply() override
    {
        int index = m_first;
        for (CBaseObject *object : objects())
            page()->addObject(object, index++);
        page()->select(objects());
    }

private:
    int m_first; ///< index of the first object in stacking order
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

using ObjectTest = std::function<bool(CBaseObject *)>;

/// Swaps every moving object below one that does not move with it, from the top down.
void passForward(QVector<CBaseObject *> &order, const ObjectTest &isMoving)
{
    for (int i = order.size() - 2; i >= 0; --i)
        if (isMoving(order[i]) && !isMoving(order[i + 1]))
            order.swapItemsAt(i, i + 1);
}

QVector<CBaseObject *> restacked(QVector<CBaseObject *> order, StackingMove move, const ObjectTest &isMoving)
{
    const auto stays = [&](CBaseObject *object) { return !isMoving(object); };
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

} // namespace

bool addObjects(Page *page, const QVector<CBaseObject *> &objects)
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
    CUndoRedo::GetInstance()->push(new AddObjectsCommand(page, added));
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
    const auto isMoving = [&](CBaseObject *object) { return moving.contains(object); };
    const QVector<CBaseObject *> order = restacked(page->objects(), move, isMoving);
    if (order == page->objects())
        return false;
    CUndoRedo::GetInstance()->push(new StackingCommand(page, order));
    return true;
}

} // namespace pagehost
