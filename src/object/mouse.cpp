// The mouse: a creating drag that the object follows itself, then control points first and the host's handles
// after.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include "object/sizerules.h"
#include "shape/shapetype.h"

#include <QtWidgets/QGraphicsScene>
#include <QtWidgets/QGraphicsSceneMouseEvent>

namespace {

/// Layer caches are dropped for this reason when a control point moved.
constexpr int editingAidsChanged = 2;

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
    dragEnd = dragStart + QPointF(size.width(), size.height());
    const QSizeF sizeBefore = clientRect.size();
    clientRect = QRectF(dragStart, QSizeF(dragEnd.x() - dragStart.x(), dragEnd.y() - dragStart.y()));
    if (svgBase) {
        if (svgBase->resizeRewritesSVG)
            svgBase->setSize(sizeBefore, clientRect.size());
        if (isHostFilled(svgBase->getSVGType()))
            svgBase->updateOutlineRegion();
    }
    updateAfterObjRectChanged(nullptr, true);
    CPSRootObject::update();
}

void CSVGObj::finishCreation(QPointF scenePos)
{
    if (dragStart == dragEnd) {
        const QSizeF size = getDefaultSize();
        dragEnd += QPointF(size.width(), size.height());
    } else {
        dragEnd = SizeRules::releasedEnd(dragStart, scenePos - getPos());
        if (svgBase && svgBase->keepAspectRatio) {
            const QSizeF size =
                limitSize(QSizeF(dragEnd.x() - dragStart.x(), dragEnd.y() - dragStart.y()), getDefaultSize());
            dragEnd = dragStart + QPointF(size.width(), size.height());
        }
    }
    clientRect = QRectF(dragStart, QSizeF(dragEnd.x() - dragStart.x(), dragEnd.y() - dragStart.y()));
    baseSize = clientRect.size();
    doAfterObjCreated();
    onCreateFinished(true);
    if (svgBase)
        svgBase->notifyObjectCreated();
    if (scene())
        scene()->update();
}
