#include "draw/keptpicture.h"

#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>

#include <cstring>

namespace Svg {

namespace {

/// How far antialiasing reaches beyond what is painted, pixels, with room to spare.
constexpr int smoothingMargin = 2;
constexpr int bytesPerPixel = 4;

bool isPlainPainter(const QPainter *painter)
{
    return painter->paintEngine()->type() == QPaintEngine::Raster && !painter->hasClipping() &&
           painter->opacity() == 1 && painter->compositionMode() == QPainter::CompositionMode_SourceOver &&
           painter->deviceTransform() == painter->worldTransform();
}

// Null unless the pixels can be written behind the painter's back.
QImage *pictureOf(const QPainter *painter)
{
    if (!painter->device() || painter->device()->devType() != QInternal::Image)
        return nullptr;
    auto *image = static_cast<QImage *>(painter->device());
    const bool knownFormat =
        image->format() == QImage::Format_ARGB32 || image->format() == QImage::Format_ARGB32_Premultiplied;
    return knownFormat && image->isDetached() && isPlainPainter(painter) ? image : nullptr;
}

bool isBlankRow(const uchar *row, size_t bytes)
{
    static constexpr uchar blankPixel[bytesPerPixel] = {};
    return memcmp(row, blankPixel, bytesPerPixel) == 0 &&
           memcmp(row, row + bytesPerPixel, bytes - bytesPerPixel) == 0;
}

bool isBlank(const QImage &image, const QRect &area)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const uchar *row = image.constScanLine(y) + area.left() * bytesPerPixel;
        if (!isBlankRow(row, size_t(area.width()) * bytesPerPixel))
            return false;
    }
    return true;
}

} // namespace

bool KeptPicture::fits(const QImage &target, const QRect &area, bool withControlPoints) const
{
    return m_seen && m_format == target.format() && m_area == area && m_withControlPoints == withControlPoints;
}

bool KeptPicture::paint(QPainter *painter, const QRect &area, bool withControlPoints) const
{
    QImage *target = pictureOf(painter);
    if (!target || m_picture.isNull() || !fits(*target, area, withControlPoints))
        return false;
    for (int y = 0; y < area.height(); ++y) {
        uchar *row = target->scanLine(area.top() + y) + area.left() * bytesPerPixel;
        memcpy(row, m_picture.constScanLine(y), size_t(area.width()) * bytesPerPixel);
    }
    return true;
}

void KeptPicture::keep(QPainter *painter, const QRect &area, bool withControlPoints)
{
    const QImage *source = pictureOf(painter);
    if (!source)
        return;
    if (fits(*source, area, withControlPoints)) {
        m_picture = source->copy(area);
        return;
    }
    clear();
    m_seen = true;
    m_format = source->format();
    m_area = area;
    m_withControlPoints = withControlPoints;
}

QRect blankArea(QPainter *painter, const QRectF &bounds)
{
    const QImage *image = pictureOf(painter);
    if (!image || image->rect().isEmpty())
        return QRect();
    const QRectF reach = bounds.adjusted(-smoothingMargin, -smoothingMargin, smoothingMargin, smoothingMargin);
    const QRect area = (reach & QRectF(image->rect())).toAlignedRect() & image->rect();
    return !area.isEmpty() && isBlank(*image, area) ? area : QRect();
}

} // namespace Svg
