#include "filters/displacement.h"

#include <cmath>

namespace Svg {

namespace {

constexpr double greatest = 255;

double share(QRgb plain, Displacement::Channel channel)
{
    switch (channel) {
    case Displacement::Red:
        return qRed(plain) / greatest;
    case Displacement::Green:
        return qGreen(plain) / greatest;
    case Displacement::Blue:
        return qBlue(plain) / greatest;
    case Displacement::Alpha:
        break;
    }
    return qAlpha(plain) / greatest;
}

QRgb pixelAt(const QImage &picture, double x, double y)
{
    const double column = std::floor(x);
    const double row = std::floor(y);
    const bool inside = column >= 0 && row >= 0 && column < picture.width() && row < picture.height();
    return inside ? reinterpret_cast<const QRgb *>(picture.constScanLine(int(row)))[int(column)] : 0;
}

} // namespace

void displacePicture(QImage *picture, const QImage &map, const Displacement &displacement)
{
    constexpr double middle = 0.5;
    const QImage source = *picture;
    for (int y = 0; y < picture->height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(picture->scanLine(y));
        const auto *ways = reinterpret_cast<const QRgb *>(map.constScanLine(y));
        for (int x = 0; x < picture->width(); ++x) {
            const QRgb way = qUnpremultiply(ways[x]);
            const double dx = displacement.scale.width() * (share(way, displacement.across) - middle);
            const double dy = displacement.scale.height() * (share(way, displacement.down) - middle);
            row[x] = pixelAt(source, x + middle + dx, y + middle + dy);
        }
    }
}

} // namespace Svg
