#include <host/rootobjectprivate.h>

#include <framework/cbaseobject.h>
#include <framework/idocument.h>
#include <framework/iframework.h>

#include <pagehost/objectplugin.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <host/handlelayout.h>
#include <host/saveddata.h>

#include <QtCore/QDataStream>

#include <cmath>

namespace {

/// How far lines and labels may reach beyond the client rectangle of an object that does not say so, item
/// units.
constexpr double overhang = 8;

/// The object's answer to pagehost::PaintedArea; empty without an answer, or for one that is not a rectangle.
QRectF askedPaintedArea(CPSRootObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!object.GetSpecialProperty(pagehost::PaintedArea, out)) {
        return {};
    }
    QRectF area;
    QDataStream in(bytes);
    in >> area;
    return isFinite(area) ? area : QRectF();
}

/// To the last bit, unlike QRectF's own comparison.
bool isIdentical(const QRectF &a, const QRectF &b)
{
    return a.x() == b.x() && a.y() == b.y() && a.width() == b.width() && a.height() == b.height();
}

OperationType operationOf(CObjAction::ACT_Def handle)
{
    if (HandleLayout::isResize(handle)) {
        return OperationResize;
    }
    return handle == CObjAction::ACT_Rotate ? OperationRotate : OperationMirror;
}

} // namespace

CBaseObject *CPSRootObjectPrivate::baseObject(CPSRootObject &object)
{
    return dynamic_cast<CBaseObject *>(&object);
}

pagehost::Page *CPSRootObjectPrivate::pageOf(const CPSRootObject &object)
{
    return object.d->isBeingRead ? nullptr : dynamic_cast<pagehost::Page *>(object.GetPage());
}

pagehost::PageScene *CPSRootObjectPrivate::pageScene(const CPSRootObject &object)
{
    const QGraphicsItem *item = object.d->item;
    return item ? qobject_cast<pagehost::PageScene *>(item->scene()) : nullptr;
}

IDocument *CPSRootObjectPrivate::documentOf(const CPSRootObject &object)
{
    const IPsPage *page = object.GetPage();
    IDocument *document = page ? page->document() : nullptr;
    return document ? document : GetFramework()->currentDocument();
}

bool CPSRootObjectPrivate::isEditingBlocked(const CPSRootObject &object)
{
    const IDocument *document = documentOf(object);
    return document && document->editingBlocked() != 0;
}

void CPSRootObjectPrivate::selectAlone(CBaseObject &object)
{
    if (const pagehost::PageScene *scene = pageScene(object)) {
        scene->page()->select({&object});
        return;
    }
    object.scene()->clearSelection();
    object.setSelected(true);
}

QVector<CObjAction::ACT_Def> CPSRootObjectPrivate::handles(CPSRootObject &object)
{
    QVector<CObjAction::ACT_Def> offered;
    for (const CObjAction::ACT_Def handle : HandleLayout::handles()) {
        if (!object.isHandleDisabled(handle) && object.canDo(operationOf(handle))) {
            offered.append(handle);
        }
    }
    return offered;
}

void CPSRootObjectPrivate::assignClientSize(CPSRootObject &object, const QSizeF &size)
{
    setClientRect(object, QRectF(object.clientRect.topLeft(), size));
}

void CPSRootObjectPrivate::setClientRect(CPSRootObject &object, const QRectF &rect)
{
    // Another thread may be reading the rectangle, to copy the object's picture into it.
    if (!isIdentical(object.clientRect, rect)) {
        object.clientRect = rect;
    }
    object.dragStart = rect.topLeft();
    object.dragEnd = rect.topLeft() + QPointF(rect.width(), rect.height());
    if (object.fillProp->needCreatBrush(rect)) {
        object.fillBrush = object.fillProp->createBrushByProp(rect, false);
    }
}

void CPSRootObjectPrivate::assignMirror(CPSRootObject &object, bool horizontal, bool vertical)
{
    object.mirrorHorizontal = horizontal;
    object.mirrorVertical = vertical;
}

void CPSRootObjectPrivate::assignFill(CPSRootObject &object, const CPageBgProp &fill)
{
    *object.fillProp = fill;
    object.fillBrush = fill.createBrushByProp(object.clientRect, false);
}

void CPSRootObjectPrivate::place(CPSRootObject &object, const QPointF &pos, double degrees)
{
    QGraphicsItem *item = object.d->item;
    item->setPos(pos);
    item->setRotation(degrees);
}

void CPSRootObjectPrivate::refreshBounds(CPSRootObject &object)
{
    CBaseObject *item = baseObject(object);
    if (!item || object.d->keepsBounds) {
        return;
    }
    if (!item->scene()) {
        object.d->boundsAreStale = true;
        return;
    }
    object.d->boundsAreStale = false;
    const QRectF bounds = wantedBounds(*item);
    if (bounds == object.d->bounds) {
        return;
    }
    item->prepareGeometryChange();
    object.d->bounds = bounds;
    dropPicture(object);
}

void CPSRootObjectPrivate::dropPicture(CPSRootObject &object)
{
    QGraphicsItem *item = object.d->item;
    if (item && !object.d->isPainting) {
        // Setting the mode, even to what it is, makes Qt forget.
        item->setCacheMode(item->cacheMode());
    }
}

QRectF CPSRootObjectPrivate::currentBounds(CBaseObject &object)
{
    CPSRootObjectPrivate &host = of(object);
    if (host.boundsAreStale) {
        host.boundsAreStale = false;
        host.bounds = wantedBounds(object);
    }
    return host.bounds;
}

QRectF CPSRootObjectPrivate::wantedBounds(CBaseObject &object)
{
    CPSRootObjectPrivate &host = of(object);
    if (!host.paintedArea) {
        host.paintedArea = askedPaintedArea(object);
    }
    QRectF bounds = object.clientRect.united(*host.paintedArea);
    if (host.paintedArea->isEmpty()) {
        const double margin = host.regionIsStale ? overhang : 0;
        bounds.adjust(-margin, -margin, margin, margin);
        // Of another look perhaps, but still the best that is known.
        bounds = object.regionPath ? bounds.united(object.regionPath->controlPointRect()) : bounds;
    }
    // Control points may stand half outside, whatever their size on screen.
    const double reach = object.isSelected() ? HandleLayout::controlPointPixels : 1;
    const double margin = HandleLayout(object.clientRect, object.getCurZoomRate()).fromPixels(reach);
    return bounds.adjusted(-margin, -margin, margin, margin);
}

void CPSRootObjectPrivate::dropPaintedArea(CPSRootObject &object)
{
    object.d->paintedArea.reset();
    refreshBounds(object);
}

void CPSRootObjectPrivate::dropRegion(CPSRootObject &object)
{
    object.d->regionIsStale = true;
    dropPaintedArea(object);
}

QPainterPath CPSRootObjectPrivate::currentRegion(CBaseObject &object)
{
    CPSRootObjectPrivate &host = of(object);
    if (host.regionIsStale && object.createFinished) {
        // Whoever asks may be in the middle of looking through the scene, which must not be rearranged then.
        host.keepsBounds = true;
        object.regenRegionShape(nullptr);
        host.keepsBounds = false;
    }
    return object.regionPath ? *object.regionPath : QPainterPath();
}

void CPSRootObjectPrivate::noteChange(CPSRootObject &object)
{
    if (pagehost::Page *page = pageOf(object)) {
        page->noteChange();
    }
    noteInvisibleChange(object);
}

void CPSRootObjectPrivate::noteInvisibleChange(CPSRootObject &object)
{
    if (pagehost::Page *page = pageOf(object)) {
        Q_EMIT page->objectChanged(baseObject(object));
    }
}

void CPSRootObjectPrivate::setPlayed(CPSRootObject &object, bool played)
{
    object.d->playedState.reset();
    if (played) {
        object.d->playedState = pagehost::savedData(*baseObject(object));
    }
}

bool CPSRootObjectPrivate::isNextPicture(CPSRootObject &object)
{
    if (!object.d->playedState) {
        return false;
    }
    const QByteArray state = pagehost::savedData(*baseObject(object));
    if (state == *object.d->playedState) {
        return true;
    }
    object.d->playedState = state;
    return false;
}

QSizeF possibleSize(const QSizeF &size)
{
    return size.expandedTo({0, 0}).boundedTo({longestSide, longestSide});
}

double normalizedDegrees(double degrees)
{
    const double rest = std::fmod(degrees, 360);
    const double positive = rest < 0 ? rest + 360 : rest;
    return positive < 360 ? positive : 0;
}

QPointF rotated(const QPointF &vector, double degrees)
{
    return QTransform().rotate(degrees).map(vector);
}

bool isFinite(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

bool isFinite(const QSizeF &size)
{
    return std::isfinite(size.width()) && std::isfinite(size.height());
}

bool isFinite(const QRectF &rect)
{
    return isFinite(rect.topLeft()) && isFinite(rect.size());
}
