#include <pagehost/selection.h>

#include <framework/cbaseobject.h>

#include <pagehost/commands.h>
#include <pagehost/documentfile.h>
#include <pagehost/page.h>

#include <memory>

namespace pagehost {

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
    QVector<CBaseObject *> copies;
    const QVector<CBaseObject *> selected = page->selectedObjects();
    for (CBaseObject *object : selected) {
        CBaseObject *copy = cloneObject(object, registry);
        if (!copy)
            continue;
        copy->CPSRootObject::setPos(object->getPos() + offset, false);
        copies.append(copy);
    }
    addObjects(page, copies);
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
    std::unique_ptr<CBaseObject> copy(
        decodeObjects(encodeObjects({object}), *registry, nullptr, object->GetPage()).value(0));
    const bool isCopy = copy && isPlaceholder(copy.get()) == isPlaceholder(object);
    return isCopy ? copy.release() : nullptr;
}

} // namespace pagehost
