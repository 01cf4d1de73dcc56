// The mouse: the creating drag, which the object handles itself; afterwards control points, then the host's
// handles.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include "object/sizerules.h"
#include "shape/shapetype.h"

#include <QtWidgets/QGraphicsScene>
#include <QtWidgets/QGraphicsSceneMouseEvent>

namespace {

/// Layer caches are dropped for this reason when a control point moved.
constexpr int editingAidsChanged = 2;

QPointF pointOf(QSizeF size)
{
    return QPointF(size.width(), size.height());
}

QSizeF sizeOf(QPointF way)
{
    return QSizeF(way.x(), way.y());
}

} // namespace

void CSVGObj::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (!createFinished) {
        startCreation(event->pos());
        return;
    }
    if (svgBase) {
        svgBase->setFlipOn(mirrorHorizontal, mirrorVertical);
        if (svgBase->mousePressEvent(event))
            return;
    }
    CBaseObject::mousePressEvent(event);
}

void CSVGObj::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (!createFinished) {
        followCreation(event->scenePos());
        return;
    }
    if (svgBase && svgBase->mouseMoveEvent(event)) {
        clearLayerEffectCache(editingAidsChanged);
        return;
    }
    CBaseObject::mouseMoveEvent(event);
}

void CSVGObj::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (!createFinished) {
        finishCreation(event->scenePos());
        return;
    }
    if (svgBase && svgBase->mouseReleaseEvent(event)) {
        regenRegionShape(nullptr);
        return;
    }
    CBaseObject::mouseReleaseEvent(event);
}

bool CSVGObj::CheckHitTestHandlers(const QPointF &scenePos, CObjAction::ACT_Def &action)
{
    const QPointF itemPos = GetGraphicsItemPtr()->mapFromScene(scenePos);
    // On a control point the host must not start an action of its own; `action` stays as it is.
    if (svgBase && svgBase->CheckHitTestHandlers(itemPos))
        return true;
    return CPSRootObject::CheckHitTestHandlers(scenePos, action);
}

void CSVGObj::startCreation(QPointF pos)
{
    dragStart = pos;
    dragEnd = pos;
    clientRect = QRectF(pos, QSizeF(0, 0));
    updateAfterObjRectChanged(nullptr, true);
}

void CSVGObj::followCreation(QPointF scenePos)
{
    const QPointF pos = scenePos - getPos();
    if (pos.x() < 0 || pos.y() < 0)
        return;
    QSizeF size(pos.x() - dragStart.x(), pos.y() - dragStart.y());
    if (svgBase) {
        validateSize(size);
        if (svgBase->keepAspectRatio)
            size = limitSize(size, getDefaultSize());
    }
    dragEnd = dragStart + pointOf(size);
    const QSizeF sizeBefore = clientRect.size();
    clientRect = QRectF(dragStart, sizeOf(dragEnd - dragStart));
    if (svgBase) {
        if (svgBase->resizeRewritesSVG)
            svgBase->setSize(sizeBefore, clientRect.size());
        if (isHostFilled(svgBase->getSVGType()))
            svgBase->updateOutlineRegion();
    }
    updateAfterObjRectChanged(nullptr, true);
    CPSRootObject::update();
}

/// Puts the end of the drag rectangle where the release leaves it, and returns the size of the object.
QSizeF CSVGObj::releasedSize(QPointF scenePos)
{
    const bool isClick = dragStart == dragEnd;
    if (isClick)
        dragEnd += pointOf(getDefaultSize());
    else
        dragEnd = SizeRules::releasedEnd(dragStart, scenePos - getPos());
    const QSizeF dragged = sizeOf(dragEnd - dragStart);
    if (isClick || !svgBase || !svgBase->keepAspectRatio)
        return dragged;
    // Here alone the size isn't recomputed from the two points, which would round it.
    const QSizeF size = limitSize(dragged, getDefaultSize());
    dragEnd = dragStart + pointOf(size);
    return size;
}

void CSVGObj::finishCreation(QPointF scenePos)
{
    baseSize = releasedSize(scenePos);
    clientRect = QRectF(dragStart, baseSize);
    doAfterObjCreated();
    onCreateFinished(true);
    if (svgBase)
        svgBase->notifyObjectCreated();
    if (scene())
        scene()->update();
}
