#include "raster/blending.h"

#include "grammar/linearlight.h"

#include <QtCore/QtMath>
#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace Svg {

namespace {

constexpr double redShare = 0.2125;
constexpr double greenShare = 0.7154;
constexpr double blueShare = 0.0721;
constexpr int opaque = 255;

QRgb *rowOf(QImage *image, int y)
{
    return reinterpret_cast<QRgb *>(image->scanLine(y));
}

const QRgb *rowOf(const QImage &image, int y)
{
    return reinterpret_cast<const QRgb *>(image.constScanLine(y));
}

// A premultiplied pixel's luminance includes its alpha.
int luminance(QRgb pixel)
{
    return qRound(redShare * qRed(pixel) + greenShare * qGreen(pixel) + blueShare * qBlue(pixel));
}

int linearLuminance(QRgb pixel)
{
    const QRgb plain = qUnpremultiply(pixel);
    const double light = redShare * linearFromEncoded(qRed(plain)) + greenShare * linearFromEncoded(qGreen(plain)) +
                         blueShare * linearFromEncoded(qBlue(plain));
    return qRound(light * qAlpha(pixel));
}

/// A colour with components from 0 to 1, not premultiplied.
struct Rgb
{
    double r = 0;
    double g = 0;
    double b = 0;
};

Rgb operator*(const Rgb &c, double factor)
{
    return {c.r * factor, c.g * factor, c.b * factor};
}

Rgb operator+(const Rgb &a, const Rgb &b)
{
    return {a.r + b.r, a.g + b.g, a.b + b.b};
}

double lum(const Rgb &c)
{
    return 0.3 * c.r + 0.59 * c.g + 0.11 * c.b;
}

double sat(const Rgb &c)
{
    return std::max({c.r, c.g, c.b}) - std::min({c.r, c.g, c.b});
}

// Pulls components outside their range back along the line to grey.
Rgb clipped(const Rgb &c)
{
    const double l = lum(c);
    const double low = std::min({c.r, c.g, c.b});
    const double high = std::max({c.r, c.g, c.b});
    const Rgb grey{l, l, l};
    Rgb result = c;
    if (low < 0)
        result = grey + (result + grey * -1) * (l / (l - low));
    if (high > 1)
        result = grey + (result + grey * -1) * ((1 - l) / (high - l));
    return result;
}

Rgb withLum(const Rgb &c, double l)
{
    const double d = l - lum(c);
    return clipped({c.r + d, c.g + d, c.b + d});
}

Rgb withSat(const Rgb &c, double s)
{
    const double low = std::min({c.r, c.g, c.b});
    const double range = sat(c);
    if (range <= 0)
        return Rgb();
    return {(c.r - low) * s / range, (c.g - low) * s / range, (c.b - low) * s / range};
}

double screened(double below, double above)
{
    return below + above - below * above;
}

double hardLight(double below, double above)
{
    return above <= 0.5 ? below * 2 * above : screened(below, 2 * above - 1);
}

double softLight(double below, double above)
{
    if (above <= 0.5)
        return below - (1 - 2 * above) * below * (1 - below);
    const double raised = below <= 0.25 ? ((16 * below - 12) * below + 4) * below : std::sqrt(below);
    return below + (2 * above - 1) * (raised - below);
}

double dodged(double below, double above)
{
    if (below <= 0)
        return 0;
    return above >= 1 ? 1 : qMin(1.0, below / (1 - above));
}

double burned(double below, double above)
{
    if (below >= 1)
        return 1;
    return above <= 0 ? 0 : 1 - qMin(1.0, (1 - below) / above);
}

// One component of the separable modes (Compositing 1 §9.1).
double mixedComponent(double below, double above, BlendMode mode)
{
    switch (mode) {
    case BlendMode::Multiply:
        return below * above;
    case BlendMode::Screen:
        return screened(below, above);
    case BlendMode::Overlay:
        return hardLight(above, below);
    case BlendMode::Darken:
        return qMin(below, above);
    case BlendMode::Lighten:
        return qMax(below, above);
    case BlendMode::ColorDodge:
        return dodged(below, above);
    case BlendMode::ColorBurn:
        return burned(below, above);
    case BlendMode::HardLight:
        return hardLight(below, above);
    case BlendMode::SoftLight:
        return softLight(below, above);
    case BlendMode::Difference:
        return qAbs(below - above);
    case BlendMode::Exclusion:
        return below + above - 2 * below * above;
    default:
        return above;
    }
}

Rgb mixed(const Rgb &backdrop, const Rgb &source, BlendMode mode)
{
    switch (mode) {
    case BlendMode::Hue:
        return withLum(withSat(source, sat(backdrop)), lum(backdrop));
    case BlendMode::Saturation:
        return withLum(withSat(backdrop, sat(source)), lum(backdrop));
    case BlendMode::Color:
        return withLum(source, lum(backdrop));
    case BlendMode::Luminosity:
        return withLum(backdrop, lum(source));
    default:
        return {mixedComponent(backdrop.r, source.r, mode), mixedComponent(backdrop.g, source.g, mode),
                mixedComponent(backdrop.b, source.b, mode)};
    }
}

Rgb plainColor(QRgb pixel)
{
    const double alpha = qAlpha(pixel);
    if (alpha <= 0)
        return Rgb();
    return {qRed(pixel) / alpha, qGreen(pixel) / alpha, qBlue(pixel) / alpha};
}

int byteOf(double share)
{
    return qBound(0, qRound(share * opaque), opaque);
}

// Both colours are added (Compositing 2, "plus-lighter").
QRgb added(QRgb below, QRgb above, double opacity)
{
    const auto sum = [opacity](int a, int b) { return qMin(opaque, qRound(a + b * opacity)); };
    return qRgba(sum(qRed(below), qRed(above)), sum(qGreen(below), qGreen(above)), sum(qBlue(below), qBlue(above)),
                 sum(qAlpha(below), qAlpha(above)));
}

// Compositing 1 §5.1, with premultiplied results.
QRgb blended(QRgb below, QRgb above, double opacity, BlendMode mode)
{
    const double backdropAlpha = qAlpha(below) / double(opaque);
    const double sourceAlpha = qAlpha(above) / double(opaque) * opacity;
    const Rgb backdrop = plainColor(below);
    const Rgb source = plainColor(above);
    const Rgb result = source * (sourceAlpha * (1 - backdropAlpha)) +
                       mixed(backdrop, source, mode) * (sourceAlpha * backdropAlpha) +
                       backdrop * (backdropAlpha * (1 - sourceAlpha));
    const int alpha = byteOf(sourceAlpha + backdropAlpha * (1 - sourceAlpha));
    return qRgba(qMin(alpha, byteOf(result.r)), qMin(alpha, byteOf(result.g)), qMin(alpha, byteOf(result.b)),
                 alpha);
}

} // namespace

void keepCovered(QImage *picture, const QImage &coverage)
{
    QPainter painter(picture);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, coverage);
}

void turnLuminanceIntoAlpha(QImage *picture, bool linear)
{
    for (int y = 0; y < picture->height(); ++y) {
        QRgb *row = rowOf(picture, y);
        for (int x = 0; x < picture->width(); ++x)
            if (row[x] != 0)
                row[x] = qRgba(0, 0, 0, linear ? linearLuminance(row[x]) : luminance(row[x]));
    }
}

void blendOver(QImage *backdrop, const QPoint &place, const QImage &source, double opacity, BlendMode mode)
{
    const QRect area = QRect(place, source.size()) & backdrop->rect();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        QRgb *below = rowOf(backdrop, y);
        const QRgb *above = rowOf(source, y - place.y());
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb pixel = above[x - place.x()];
            if (mode == BlendMode::PlusLighter)
                below[x] = added(below[x], pixel, opacity);
            else if (qAlpha(pixel) > 0)
                below[x] = blended(below[x], pixel, opacity, mode);
        }
    }
}

} // namespace Svg
