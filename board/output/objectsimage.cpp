#include "output/objectsimage.h"

#include <framework/cbaseobject.h>

#include <QtGui/QPainter>

#include <algorithm>

namespace board {

namespace {

constexpr double longestSide = 4096;

/// Larger than what is painted: objects count the room of their handles in.
QRectF generousArea(const QVector<CBaseObject *> &objects)
{
    QRectF area;
    for (const CBaseObject *object : objects)
        area |= object->mapRectToScene(object->getClientRect() | object->boundingRect());
    return area;
}

void paintObject(QPainter &painter, CBaseObject *object)
{
    painter.save();
    painter.setTransform(object->sceneTransform(), true);
    painter.setOpacity(object->effectiveOpacity());
    object->OnQPainterDraw(&painter);
    painter.restore();
}

bool isRowEmpty(const QImage &image, int y)
{
    const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
    return std::all_of(line, line + image.width(), [](QRgb pixel) { return qAlpha(pixel) == 0; });
}

bool isColumnEmpty(const QImage &image, int x)
{
    for (int y = 0; y < image.height(); ++y)
        if (qAlpha(reinterpret_cast<const QRgb *>(image.constScanLine(y))[x]) != 0)
            return false;
    return true;
}

QRect paintedPart(const QImage &image)
{
    QRect part = image.rect();
    while (!part.isEmpty() && isRowEmpty(image, part.top()))
        part.setTop(part.top() + 1);
    while (!part.isEmpty() && isRowEmpty(image, part.bottom()))
        part.setBottom(part.bottom() - 1);
    while (!part.isEmpty() && isColumnEmpty(image, part.left()))
        part.setLeft(part.left() + 1);
    while (!part.isEmpty() && isColumnEmpty(image, part.right()))
        part.setRight(part.right() - 1);
    return part;
}

} // namespace

ObjectsImage imageOf(const QVector<CBaseObject *> &objects, double scale)
{
    const QRectF area = generousArea(objects);
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
    for (CBaseObject *object : objects)
        if (object->isVisible())
            paintObject(painter, object);
    painter.end();
    const QRect part = paintedPart(image);
    if (part.isEmpty())
        return {};
    return {image.copy(part),
            QRectF(area.topLeft() + QPointF(part.topLeft()) / fitting, QSizeF(part.size()) / fitting)};
}

} // namespace board
