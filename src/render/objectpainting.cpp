// Paints the page object: onto a painter, into the off-screen picture, or from there on another thread.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include "render/cachepicture.h"
#include "render/cacherendering.h"
#include "shape/shapetype.h"

#include <QtCore/QThread>
#include <QtGui/QPainter>

#include <utility>

namespace {

constexpr QPainter::RenderHints fillHints =
    QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform;

/// Rounds the rectangle's edges to whole pixels.
QRect wholePixels(const QRectF &rect)
{
    const int left = qRound(rect.x());
    const int top = qRound(rect.y());
    return QRect(left, top, qRound(rect.x() + rect.width()) - left, qRound(rect.y() + rect.height()) - top);
}

/// Painting caches its own representation inside a path, where it would live as long as the outline.
QPainterPath unshared(const QPainterPath &path)
{
    if (path.isEmpty())
        return path;
    QPainterPath copy;
    copy.setFillRule(path.fillRule());
    copy.addPath(path);
    return copy;
}

} // namespace

void CSVGObj::OnQPainterDraw(QPainter *painter)
{
    drawSVG(painter);
}

void CSVGObj::drawSVG(QPainter *painter)
{
    if (!painter) {
        renderCache();
        return;
    }
    if (createThreadId != QThread::currentThreadId()) {
        copyCache(painter);
        return;
    }
    paintContent(painter, false);
}

void CSVGObj::copyCache(QPainter *painter)
{
    const QMutexLocker locker(&cacheMutex);
    painter->drawImage(clientRect, cacheImage, QRectF(0, 0, cacheImage.width(), cacheImage.height()));
}

void CSVGObj::renderCache()
{
    CacheRendering rendering(this);
    while (rendering.next()) {
        const QMutexLocker locker(&cacheMutex);
        cacheImage = emptyCachePicture(clientRect.size(), std::move(cacheImage));
        {
            QPainter target;
            // Nothing can be painted on a picture without pixels; the painter stays inactive.
            if (!cacheImage.isNull())
                target.begin(&cacheImage);
            paintContent(&target, true);
        }
        cacheImage = withoutPaintingTools(cacheImage);
    }
}

void CSVGObj::paintContent(QPainter *target, bool toCache)
{
    beginPaint(target);
    if (svgBase && clientRect.width() > 0 && clientRect.height() > 0) {
        if (isHostFilled(svgBase->getSVGType()))
            paintHostFill(target);
        svgBase->paint(target, toCache);
    }
    endPaint(target);
}

void CSVGObj::paintHostFill(QPainter *target)
{
    QPainterPath outline;
    svgBase->getOutlineRegion(&outline);
    if (fillProp && fillProp->needCreatBrush(clientRect))
        fillBrush = fillProp->createBrushByProp(clientRect, false);
    if (target->isActive()) {
        target->setPen(myPen);
        target->setRenderHints(fillHints, true);
        target->setClipPath(unshared(outline), Qt::ReplaceClip);
        const bool hasPicture = fillProp && fillProp->isFillEnable() &&
                                fillProp->fillType() == CPageBgProp::PictureFill && !fillProp->pixmap().isNull();
        if (hasPicture)
            target->drawPixmap(wholePixels(clientRect), fillProp->pixmap(), QRect());
        else if (fillBrush != QBrush(Qt::NoBrush))
            target->fillRect(clientRect, fillBrush);
        target->setClipping(false);
    }
    // The document must not paint its own fill over the host's.
    svgBase->updateBrush(QBrush());
}
