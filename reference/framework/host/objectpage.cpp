#include <host/objectpage.h>

#include <framework/idocument.h>
#include <framework/iframework.h>

#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <host/baseobject.h>
#include <host/rootobjectprivate.h>

pagehost::Page *pageOf(const CPSRootObject &object)
{
    const bool isBeingRead = CPSRootObjectPrivate::of(object).isBeingRead;
    return isBeingRead ? nullptr : dynamic_cast<pagehost::Page *>(object.GetPage());
}

pagehost::PageScene *pageSceneOf(const CPSRootObject &object)
{
    const QGraphicsItem *item = CPSRootObjectPrivate::of(object).item;
    return item ? qobject_cast<pagehost::PageScene *>(item->scene()) : nullptr;
}

IDocument *documentOf(const CPSRootObject &object)
{
    const IPsPage *page = object.GetPage();
    IDocument *document = page ? page->document() : nullptr;
    return document ? document : GetFramework()->currentDocument();
}

bool isEditingBlocked(const CPSRootObject &object)
{
    const IDocument *document = documentOf(object);
    return document && document->editingBlocked() != 0;
}

void selectAlone(CBaseObject &object)
{
    if (const pagehost::PageScene *scene = pageSceneOf(object)) {
        scene->page()->select(scene->page()->unitOf(&object));
        return;
    }
    object.scene()->clearSelection();
    object.setSelected(true);
}

void toggleSelected(CBaseObject &object)
{
    const pagehost::PageScene *scene = pageSceneOf(object);
    if (!scene) {
        object.setSelected(!object.isSelected());
        return;
    }
    const QVector<CBaseObject *> unit = scene->page()->unitOf(&object);
    QVector<CBaseObject *> selected = scene->page()->selectedObjects();
    const bool wasSelected = object.isSelected();
    for (CBaseObject *member : unit)
        selected.removeAll(member);
    scene->page()->select(wasSelected ? selected : selected + unit);
}

void noteChange(CPSRootObject &object)
{
    if (pagehost::Page *page = pageOf(object))
        page->noteChange();
    noteInvisibleChange(object);
}

void noteInvisibleChange(CPSRootObject &object)
{
    if (pagehost::Page *page = pageOf(object))
        Q_EMIT page->objectChanged(baseObject(object));
}
