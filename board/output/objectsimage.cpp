#include "output/objectsimage.h"

#include <framework/cbaseobject.h>

#include <QtGui/QPainter>

namespace board {

namespace {

constexpr double longestSide = 4096;

void paintObject(QPainter &painter, CBaseObject *object)
{
    painter.save();
    painter.setTransform(object->sceneTransform(), true);
    painter.setOpacity(object->effectiveOpacity());
    object->OnQPainterDraw(&painter);
    painter.restore();
}

} // namespace

QRectF paintedArea(const QVector<CBaseObject *> &objects)
{
    QRectF area;
    for (const CBaseObject *object : objects) {
        const double outline = object->getMyPen().widthF() / 2;
        const QRectF rect = object->getClientRect() | object->boundingRect();
        area |= object->mapRectToScene(rect.adjusted(-outline, -outline, outline, outline));
    }
    return area;
}

QImage imageOf(const QVector<CBaseObject *> &objects, double scale)
{
    const QRectF area = paintedArea(objects);
    if (area.isEmpty())
        return {};
    const double fitting = qMin(scale, longestSide / qMax(area.width(), area.height()));
    const QSize size = (area.size() * fitting).toSize().expandedTo(QSize(1, 1));
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(fitting, fitting);
    painter.translate(-area.topLeft());
    for (CBaseObject *object : objects) {
        if (object->isVisible())
            paintObject(painter, object);
    }
    return image;
}

} // namespace board
