// Drawing a document onto a painter.

#include "document/documentprivate.h"
#include "grammar/viewboxes.h"
#include "paint/displaylistcache.h"
#include "resolve/viewports.h"

#include <QtGui/QPainter>

using namespace Svg;

namespace {

bool isFinite(const QTransform &t)
{
    return qIsFinite(t.m11() + t.m12() + t.m21() + t.m22() + t.dx() + t.dy());
}

bool isDrawable(const QRectF &rect)
{
    return !rect.isEmpty() && qIsFinite(rect.x() + rect.y() + rect.width() + rect.height());
}

// Stretches the box over the target and magnifies about the target's centre.
QTransform stretchTransform(const QRectF &box, const QRectF &target, double scale)
{
    const double sx = target.width() / box.width() * scale;
    const double sy = target.height() / box.height() * scale;
    const QPointF from = box.center();
    const QPointF to = target.center();
    return QTransform(sx, 0, 0, sy, to.x() - from.x() * sx, to.y() - from.y() * sy);
}

} // namespace

void DocumentPrivate::paint(QPainter *painter, const QTransform &stretch, bool withControlPoints)
{
    const QTransform world = painter->worldTransform();
    if (!isFinite(world))
        return;
    std::unique_ptr<DisplayList> list = DisplayListCache::take(this);
    list->update(shown(), stretch, world);
    // Nothing of what the caller's painter is set to may show but its place, clip, opacity and composition.
    painter->setWorldTransform(QTransform());
    painter->setBrushOrigin(0, 0);
    painter->setBackgroundMode(Qt::TransparentMode);
    painter->setRenderHints(painter->renderHints(), false);
    list->paint(painter, withControlPoints);
    drawMessages = list->messages(shown().tree());
    if (m_presentation)
        m_presentation->report().appendTo(&drawMessages, shown().tree());
    DisplayListCache::keep(this, std::move(list));
}

void DocumentPrivate::draw(QPainter *painter, const QRectF &target, float scale, bool viewFlag)
{
    lastDraw = {target, scale, viewFlag};
    showMoment();
    const QRectF box = shownViewBox();
    beforeDraw = false;
    if (!painter || !painter->isActive() || !isDrawable(target) || !isDrawable(box))
        return;
    const QTransform stretch = stretchTransform(box, target, scale);
    if (!(scale > 0) || !isFinite(stretch))
        return;
    painter->save();
    if (callback) {
        painter->save();
        painter->setWorldTransform(stretch, true);
        callback(painter);
        painter->restore();
    }
    paint(painter, stretch, viewFlag && selectionState == 1);
    painter->restore();
}

void DocumentPrivate::drawFitted(QPainter *painter, const QRectF &viewport)
{
    if (!painter || !painter->isActive() || !isDrawable(viewport))
        return;
    content.setWindow(viewport.size());
    showMoment();
    const Node &root = shown().tree().node(rootNode);
    const QRectF box = shownArea(root, viewport.size());
    const AspectRatio ratio = parseAspectRatio(root.attributes.value(AttributeId::PreserveAspectRatio));
    const std::optional<QTransform> fitted = viewBoxTransform(box, viewport, ratio);
    if (!fitted || !isFinite(*fitted))
        return;
    painter->save();
    painter->setClipRect(viewport, Qt::IntersectClip);
    paint(painter, *fitted, false);
    painter->restore();
}
