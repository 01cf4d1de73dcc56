#include <framework/cpsrootobject.h>

#include <framework/cbaseobject.h>
#include <framework/idocument.h>
#include <framework/iframework.h>

#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/recorder.h>

#include <host/baseobject.h>
#include <host/gripdrag.h>
#include <host/objectpage.h>
#include <host/payload.h>
#include <host/rootobjectprivate.h>

#include <QtCore/QDataStream>
#include <QtGui/QPainter>
#include <QtWidgets/QGraphicsView>

CPSRootObjectPrivate::CPSRootObjectPrivate(CPSRootObject &object, IPsPage *objectPage, QGraphicsItem *graphicsItem)
    : item(graphicsItem)
    , page(objectPage)
    , m_object(object)
{
}

CPSRootObjectPrivate::~CPSRootObjectPrivate() = default;

CPSRootObject::CPSRootObject(IPsPage *page, QGraphicsItem *item)
    : attributeIds({2001, 2002, 2003, 2004, 2010, 2011, 2012, 2013, 2014, 2015, 2050, 2051})
    , fillProp(new CPageBgProp(page))
    , d(std::make_unique<CPSRootObjectPrivate>(*this, page, item))
{
    d->followedZoom = CPSRootObject::getCurZoomRate();
}

CPSRootObject::~CPSRootObject()
{
    delete fillProp;
    delete regionPath;
}

QString CPSRootObject::getObjName()
{
    return objName;
}

void CPSRootObject::OnQPainterDraw(QPainter *painter)
{
    if (!painter)
        return;
    beginPaint(painter);
    painter->fillRect(clientRect, fillBrush);
    endPaint(painter);
}

void CPSRootObject::beginPaint(QPainter *painter)
{
    const double zoom = getCurZoomRate();
    if (zoom != d->followedZoom)
        d->followedZoom = zoom;
    if (!painter || !painter->isActive())
        return;
    painter->save();
    if (!mirrorHorizontal && !mirrorVertical)
        return;
    const QPointF center = clientRect.center();
    painter->translate(center);
    painter->scale(mirrorHorizontal ? -1 : 1, mirrorVertical ? -1 : 1);
    painter->translate(-center);
}

void CPSRootObject::endPaint(QPainter *painter)
{
    if (painter && painter->isActive())
        painter->restore();
}

void CPSRootObject::clearLayerEffectCache(int)
{
    update();
}

bool CPSRootObject::canDo(OperationType operation)
{
    switch (operation) {
    case OperationSelect:
    case OperationMove:
    case OperationResize:
    case OperationRotate:
    case OperationMirror:
    case OperationDelete:
    case OperationCopy:
    case OperationCut:
    case OperationDuplicate:
    case OperationReorder:
    case OperationLock:
        return true;
    default:
        return false;
    }
}

void CPSRootObject::PopupObjectMenu(void *) {}

bool CPSRootObject::isVisible() const
{
    return d->item && d->item->isVisible();
}

void CPSRootObject::setLocked(bool locked)
{
    d->locked = locked;
    noteInvisibleChange(*this);
    if (pagehost::PageScene *scene = pageSceneOf(*this))
        scene->updateOverlay();
}

bool CPSRootObject::isLocked() const
{
    return d->locked;
}

void CPSRootObject::RecordAction(int actionId, QByteArray *data)
{
    pagehost::ActionSink *sink = pagehost::actionSink();
    if (sink && data)
        sink->actionRecorded(this, actionId, *data);
}

void CPSRootObject::notifyObjPropertyChanged(int id, const QString &value)
{
    update();
    CBaseObject *item = baseObject(*this);
    const bool isNextPicture = item && id == AppearanceChanged && d->played.isNextPicture(*item);
    if (!isNextPicture && (id == SizeChanged || id == AppearanceChanged))
        d->dropRegion();
    pagehost::Page *page = pageOf(*this);
    if (!page)
        return;
    if (!isNextPicture)
        noteChange(*this);
    Q_EMIT page->objectPropertyChanged(item, id, value);
}

void CPSRootObject::onCreateFinished(bool)
{
    noteChange(*this);
}

void CPSRootObject::updateAfterObjRectChanged(QGraphicsItem *, bool redraw)
{
    d->dropRegion();
    noteChange(*this);
    if (pagehost::PageScene *scene = pageSceneOf(*this))
        scene->updateOverlay();
    if (redraw)
        update();
}

IPsPage *CPSRootObject::GetPage() const
{
    return d->page;
}

void CPSRootObject::SetPage(IPsPage *page)
{
    d->page = page;
}

void CPSRootObject::regenRegionShape(QGraphicsItem *)
{
    d->bounds.takeRegion();
    d->refreshBounds();
}

void CPSRootObject::update()
{
    if (!d->item)
        return;
    d->dropPicture();
    d->item->update();
}

double CPSRootObject::getCurZoomRate() const
{
    const IDocument *document = documentOf(*this);
    return document ? document->zoomRate() : 1;
}

QGraphicsView *CPSRootObject::FindFirstVisibleView(QList<QGraphicsView *> &views)
{
    for (QGraphicsView *view : qAsConst(views))
        if (view && view->isVisible())
            return view;
    return nullptr;
}

void CPSRootObject::setMyPenColor(QColor color, bool notify)
{
    myPen.setColor(color);
    update();
    noteChange(*this);
    if (!notify)
        return;
    QByteArray payload = payloadOf(color);
    RecordAction(pagehost::ActionPenColored, &payload);
    notifyObjPropertyChanged(AppearanceChanged, QString());
}

void CPSRootObject::setSubType(int subType)
{
    d->subType = subType;
    noteInvisibleChange(*this);
}

int CPSRootObject::getSubType() const
{
    return d->subType;
}
