// Dragging control points.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgbaseundocmd.h>
#include <svgobj/csvgobj.h>

#include <framework/idocument.h>

#include <svgbase/qzesvgtinydocument.h>

#include "properties/valuecodec.h"
#include "render/draglimits.h"
#include "shape/constants.h"
#include "shape/controlpoints.h"
#include "shape/shapetype.h"
#include "shape/viewbox.h"

#include <QtWidgets/QGraphicsSceneMouseEvent>

#include <cmath>

namespace {

/// A coordinate that is not finite, which damaged data may contain, moves nothing.
bool isMove(double from, double to)
{
    return std::isfinite(to) && qAbs(from - to) >= sizeEpsilon;
}

} // namespace

bool CSVGBase::isEditingBlocked()
{
    if (!belongDoc)
        getBelongDoc();
    return belongDoc && belongDoc->editingBlocked() != 0;
}

bool CSVGBase::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (isEditingBlocked())
        return false;
    const QPointF pos = event->pos();
    const bool reachable =
        document && document->selectionState() == 1 && owner && owner->getClientRect().contains(pos);
    if (reachable) {
        activeControlPoint = nullptr;
        const QPointF svgPos = mapToSVG(pos);
        // Where hit areas overlap, the last point in index order is dragged.
        forEachControlPoint(controlPoints, controlPointCount, [&](QZeSvgNode *node) {
            if (isControlPointHit(*node, svgPos))
                beginDrag(node, pos);
        });
    }
    updateFinished = false;
    return reachable && activeControlPoint;
}

void CSVGBase::beginDrag(QZeSvgNode *node, QPointF pressPos)
{
    activeControlPoint = node;
    dragStartPos = node->boundingRect().topLeft();
    lastMousePos = pressPos;
    if (node->canMoveHorizontally()) {
        dragXMin = getXMin(node);
        dragXMax = getXMax(node);
    }
    if (node->canMoveVertically()) {
        dragYMin = getYMin(node);
        dragYMax = getYMax(node);
    }
}

bool CSVGBase::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (isEditingBlocked())
        return false;
    const bool dragging = moveControlPoint(event->pos());
    // On every move, whether or not anything moved.
    if (isHostFilled(getSVGType()))
        updateOutlineRegion();
    return dragging;
}

bool CSVGBase::moveControlPoint(QPointF pos)
{
    QZeSvgNode *node = activeControlPoint;
    if (!node)
        return false;
    const bool horizontal = node->canMoveHorizontally();
    const bool vertical = node->canMoveVertically();
    const double dx = horizontal ? mapXToSVG(pos.x() - lastMousePos.x()) : 0.0;
    const double dy = vertical ? mapYToSVG(pos.y() - lastMousePos.y()) : 0.0;
    if (dx == 0 && dy == 0)
        return true;
    // Always relative to the start of the drag, never step by step.
    QPointF target = dragStartPos;
    if (horizontal)
        target.setX(limited(dragStartPos.x() + dx, dragXMin, dragXMax));
    if (vertical)
        target.setY(limited(dragStartPos.y() + dy, dragYMin, dragYMax));
    if (CanMoveControlPoint(node, target))
        updateSVGControlPoint(node, target, true, true, false);
    return true;
}

bool CSVGBase::updateSVGControlPoint(QZeSvgNode *node, QPointF pos, bool refresh, bool record, bool finished)
{
    if (!node)
        return false;
    // Records also a position that changes nothing.
    if (record)
        RecordDataBuffer(encodeValues(node->nodeId(), pos), ACT_SVG_CONTROLPOINT);
    const QPointF before = node->boundingRect().topLeft();
    QPointF delta;
    if (isMove(before.x(), pos.x())) {
        node->setNumericAttribute(QStringLiteral("x"), pos.x());
        delta.setX(pos.x() - before.x());
    }
    if (isMove(before.y(), pos.y())) {
        node->setNumericAttribute(QStringLiteral("y"), pos.y());
        delta.setY(pos.y() - before.y());
    }
    if (delta.x() == 0 && delta.y() == 0)
        return false;
    updateFinished = finished;
    const bool updated = updateSVG(node, delta, refresh);
    updateFinished = true;
    return updated;
}

bool CSVGBase::mouseReleaseEvent(QGraphicsSceneMouseEvent *)
{
    if (isEditingBlocked())
        return false;
    updateFinished = true;
    if (!activeControlPoint)
        return false;
    auto *command = new CSVGBaseUndoCmd(this, ACT_SVG_CONTROLPOINT, nullptr, true);
    command->setControlPointPos(activeControlPoint, dragStartPos, activeControlPoint->boundingRect().topLeft());
    addUndoRedo(command);
    updateOutlineRegion();
    activeControlPoint = nullptr;
    return true;
}

bool CSVGBase::CheckHitTestHandlers(const QPointF &pos)
{
    if (isEditingBlocked() || !document)
        return false;
    const QPointF svgPos = mapToSVG(pos);
    bool hit = false;
    forEachControlPoint(controlPoints, controlPointCount,
                        [&](const QZeSvgNode *node) { hit = hit || isControlPointHit(*node, svgPos); });
    return hit;
}

void CSVGBase::changeControlPointSize(QZeSvgNode *node, double size, bool)
{
    if (!node)
        return;
    const QRectF before = node->boundingRect();
    if (size == before.width())
        return;
    node->setNumericAttribute(QStringLiteral("x"), before.x() - (size - before.width()) * 0.5);
    node->setNumericAttribute(QStringLiteral("y"), before.y() - (size - before.height()) * 0.5);
    node->setNumericAttribute(QStringLiteral("rx"), size * 0.5);
    node->setNumericAttribute(QStringLiteral("ry"), size * 0.5);
    node->setNumericAttribute(QStringLiteral("width"), size);
    node->setNumericAttribute(QStringLiteral("height"), size);
    // The page object would follow a change of the document's bounds, but resizing a control point must not change
    // them.
    settledViewBox(document);
}
