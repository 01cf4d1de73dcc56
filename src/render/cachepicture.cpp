#include "render/cachepicture.h"

#include <limits>
#include <utility>

namespace {

/// Longest side of an image.
constexpr double maxSide = std::numeric_limits<int>::max();
/// Pictures up to this size, bytes, are copied to save memory.
constexpr int smallPicture = 1 << 16;

} // namespace

QSize cachePictureSize(QSizeF size)
{
    const auto isPossible = [](double side) { return side >= 1 && side <= maxSide; };
    return isPossible(size.width()) && isPossible(size.height()) ? QSize(int(size.width()), int(size.height()))
                                                                 : QSize();
}

QImage emptyCachePicture(QSizeF size, QImage previous)
{
    const QSize pixels = cachePictureSize(size);
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
