#include <pagehost/selection.h>

#include <framework/cbaseobject.h>

#include <pagehost/commands.h>
#include <pagehost/documentfile.h>
#include <pagehost/page.h>

#include <memory>

namespace pagehost {

namespace {

/// Objects of one page; without those that can't be copied.
QVector<CBaseObject *> cloneObjects(const QVector<CBaseObject *> &objects, const ObjectRegistry *registry,
                                    ObjectGroups *groups = nullptr)
{
    QVector<CBaseObject *> copies;
    if (objects.isEmpty())
        return copies;
    const QVector<CBaseObject *> decoded =
        decodeObjects(encodeObjects(objects), *registry, nullptr, objects.first()->GetPage(), groups);
    for (int i = 0; i < decoded.size(); ++i) {
        std::unique_ptr<CBaseObject> copy(decoded.at(i));
        if (isPlaceholder(copy.get()) == isPlaceholder(objects.value(i)))
            copies.append(copy.release());
    }
    return copies;
}

} // namespace

bool nudgeSelection(Page *page, const QPointF &delta)
{
    return moveObjects(page->selectedObjects(), delta);
}

bool deleteSelection(Page *page)
{
    QVector<CBaseObject *> objects;
    const QVector<CBaseObject *> selected = page->selectedObjects();
    for (CBaseObject *object : selected)
        if (!object->isLocked() && object->canDo(OperationDelete))
            objects.append(object);
    return removeObjects(page, objects);
}

QVector<CBaseObject *> duplicateSelection(Page *page, const ObjectRegistry *registry, const QPointF &offset)
{
    ObjectGroups groups;
    const QVector<CBaseObject *> copies = cloneObjects(page->selectedObjects(), registry, &groups);
    for (CBaseObject *copy : copies)
        copy->CPSRootObject::setPos(copy->getPos() + offset, false);
    addObjects(page, copies, groups, page->enteredGroup());
    return copies;
}

void selectAll(Page *page)
{
    QVector<CBaseObject *> visible;
    const QVector<CBaseObject *> objects = page->objects();
    for (CBaseObject *object : objects)
        if (object->isVisible())
            visible.append(object);
    page->select(visible);
}

QRectF boundsOf(const QVector<CBaseObject *> &objects)
{
    QRectF bounds;
    for (const CBaseObject *object : objects)
        bounds |= object->mapRectToScene(object->getClientRect());
    return bounds;
}

CBaseObject *cloneObject(CBaseObject *object, const ObjectRegistry *registry)
{
    return cloneObjects({object}, registry).value(0);
}

} // namespace pagehost
