// Drawing a document onto a painter.

#include "document/documentprivate.h"
#include "grammar/transforms.h"
#include "grammar/viewboxes.h"
#include "paint/displaylistcache.h"
#include "resolve/viewports.h"

#include <QtGui/QPainter>

using namespace Svg;

namespace {

bool isDrawable(const QRectF &rect)
{
    return !rect.isEmpty() && qIsFinite(rect.x() + rect.y() + rect.width() + rect.height());
}

QRectF magnifiedAboutCentre(const QRectF &box, double scale)
{
    const QSizeF size = box.size() * scale;
    return QRectF(box.center() - QPointF(size.width(), size.height()) / 2, size);
}

} // namespace

void DocumentPrivate::paint(QPainter *painter, const QTransform &stretch, bool withControlPoints)
{
    const QTransform world = painter->worldTransform();
    if (!isFinite(world))
        return;
    std::unique_ptr<DisplayList> list = DisplayListCache::take(this);
    list->update(shown(), stretch, world);
    // Of the state of the caller's painter, only its transform, clip, opacity and composition mode may have an
    // effect.
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
    const QTransform stretch = boxMapping(box, magnifiedAboutCentre(target, scale));
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
