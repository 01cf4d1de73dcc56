#include "paint/solidpainting.h"

#include "paint/damage.h"
#include "paint/itemmapping.h"

#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>

namespace Svg {

namespace {

bool isPlain(const QBrush &brush)
{
    return brush.style() == Qt::SolidPattern && brush.transform().isIdentity();
}

bool hasPlainStroke(const MappedShape &shape)
{
    if (shape.pen.style() == Qt::NoPen)
        return shape.strokePath.isEmpty() || isPlain(shape.pen.brush());
    return isPlain(shape.pen.brush()) && !shape.pen.isCosmetic() && shape.pen.widthF() > 0;
}

bool isSolid(const MappedShape &shape)
{
    return shape.smooth && (shape.fill.style() == Qt::NoBrush || isPlain(shape.fill)) && hasPlainStroke(shape);
}

std::shared_ptr<const FlatShape> flatShape(const MappedItem &item, const MappedShape &shape)
{
    auto flat = std::make_shared<FlatShape>();
    const QPainterPath path = mappedOutline(item);
    if (shape.fill.style() != Qt::NoBrush && !flatten(path, &flat->fill))
        return flat;
    if (shape.pen.style() != Qt::NoPen && !flattenStroke(path, shape.pen, QTransform(), &flat->stroke))
        return flat;
    flat->isUsable = shape.strokePath.isEmpty() || flatten(shape.strokePath, &flat->distorted);
    return flat;
}

bool mixesPlainly(const QPainter &painter)
{
    return painter.paintEngine()->type() == QPaintEngine::Raster && painter.paintEngine()->systemClip().isEmpty() &&
           painter.compositionMode() == QPainter::CompositionMode_SourceOver &&
           painter.deviceTransform() == QTransform();
}

bool hasKnownPixels(const QImage &picture)
{
    const bool known =
        picture.format() == QImage::Format_ARGB32 || picture.format() == QImage::Format_ARGB32_Premultiplied;
    return known && picture.devicePixelRatio() == 1 && picture.isDetached();
}

} // namespace

PixelTarget pixelTarget(const QPainter &painter)
{
    if (!painter.device() || painter.device()->devType() != QInternal::Image || !mixesPlainly(painter))
        return {};
    auto *picture = static_cast<QImage *>(painter.device());
    if (!hasKnownPixels(*picture))
        return {};
    if (!painter.hasClipping())
        return {picture, QPoint(), picture->rect()};
    // The region of a path has whole pixels, whose edges a painter may cover in part.
    const QRect clip = painter.clipRegion().boundingRect();
    QPainterPath rectangle;
    rectangle.addRect(clip);
    return painter.clipPath() == rectangle ? PixelTarget{picture, QPoint(), clip & picture->rect()} : PixelTarget();
}

bool paintSolid(const MappedItem &item, double opacity, const PixelTarget &target, bool keep)
{
    const auto &shape = std::get<MappedShape>(item.content);
    if (!target.picture || !isSolid(shape))
        return false;
    const std::shared_ptr<const FlatShape> flat = shape.flat ? shape.flat : flatShape(item, shape);
    if (keep)
        shape.flat = flat;
    if (!flat->isUsable)
        return false;
    const QRect window = paintedPixels(item.bounds, target.window);
    if (shape.fill.style() != Qt::NoBrush)
        fillSolid(flat->fill, shape.fill.color(), opacity, window, target);
    if (!flat->stroke.points.isEmpty())
        fillSolid(flat->stroke, shape.pen.color(), opacity, window, target);
    if (!flat->distorted.points.isEmpty())
        fillSolid(flat->distorted, shape.pen.color(), opacity, window, target);
    return true;
}

} // namespace Svg
