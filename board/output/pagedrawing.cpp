#include "output/pagedrawing.h"

#include "output/objectsimage.h"
#include "output/svgdrawing.h"

#include <pagehost/page.h>
#include <pagehost/pagepainter.h>

#include <framework/cbaseobject.h>
#include <svgbase/qzesvgtinydocument.h>

#include <QtGui/QPainter>

#include <memory>

namespace board {

namespace {

/// Pixels per scene unit of objects without a look as SVG: 384 an inch at 96 units an inch.
constexpr double pictureScale = 4;

/// False, with nothing drawn, without a look as SVG.
bool drawOutlines(CBaseObject *object, const QRectF &area, const pagehost::ObjectRegistry &registry,
                  QPainter *painter)
{
    const QByteArray look = svgOf({object}, area, registry);
    const std::unique_ptr<QZeSvgTinyDocument> document(look.isEmpty() ? nullptr : QZeSvgTinyDocument::load(look));
    if (document)
        document->draw(painter, area, 1, false);
    return document != nullptr;
}

/// By way of an image: on other devices selected objects draw their control points.
void drawPicture(CBaseObject *object, QPainter *painter)
{
    const ObjectsImage picture = imageOf({object}, pictureScale);
    if (!picture.image.isNull())
        painter->drawImage(picture.area, picture.image);
}

/// Lets the painter take scene units; until it is restored.
void map(QPainter *painter, const QRectF &area, const QRectF &target)
{
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter->setClipRect(target, Qt::IntersectClip);
    painter->translate(target.topLeft());
    painter->scale(target.width() / area.width(), target.height() / area.height());
    painter->translate(-area.topLeft());
}

} // namespace

void drawObjects(const QVector<CBaseObject *> &objects, const QRectF &area,
                 const pagehost::ObjectRegistry &registry, QPainter *painter, const QRectF &target)
{
    if (area.isEmpty() || target.isEmpty())
        return;
    painter->save();
    map(painter, area, target);
    for (CBaseObject *object : objects)
        if (object->isVisible() && !drawOutlines(object, area, registry, painter))
            drawPicture(object, painter);
    painter->restore();
}

void drawPage(pagehost::Page *page, const pagehost::ObjectRegistry &registry, QPainter *painter,
              const QRectF &target)
{
    pagehost::paintPageBackground(page, painter, target);
    drawObjects(page->objects(), page->rect(), registry, painter, target);
}

} // namespace board
