#include "render/cachepicture.h"

#include <utility>

namespace {

constexpr double maxPixels = double(1 << 28);
/// Pictures up to this size, bytes, are copied to save memory.
constexpr int smallPicture = 1 << 16;

} // namespace

QImage emptyCachePicture(QSizeF size, QImage previous)
{
    const bool possible = size.width() >= 1 && size.height() >= 1 && size.width() * size.height() <= maxPixels;
    if (!possible)
        return QImage();
    const QSize pixels(int(size.width()), int(size.height()));
    const bool isReusable = previous.size() == pixels && previous.format() == QImage::Format_ARGB32 &&
                            previous.devicePixelRatio() == 1 && previous.isDetached();
    QImage picture = isReusable ? std::move(previous) : QImage(pixels, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    return picture;
}

QImage withoutPaintingTools(const QImage &picture)
{
    return picture.sizeInBytes() <= smallPicture ? picture.copy() : picture;
}
