#include "raster/solidfill.h"

#include "raster/coverage.h"

#include <QtGui/QRgba64>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

namespace Svg {

namespace {

constexpr uint wholeByte = 255;
/// Steps of a painter's opacity.
constexpr int opacitySteps = 256;
constexpr int pixelsAtOnce = 4;
constexpr int bytesAtOnce = pixelsAtOnce * int(sizeof(QRgb));
constexpr int roundingHalf = 128;
/// Runs of pixels from this length on are compared as a whole first.
constexpr int longRun = 8;

/// Each channel times `factor` / 255, rounded; all four at once, spread in the wider number.
inline QRgb scaled(QRgb color, uint factor)
{
    constexpr quint64 apart = 0x00ff00ff00ff00ff;
    constexpr quint64 halves = 0x0080008000800080;
    quint64 channels = ((quint64(color) | (quint64(color) << 24)) & apart) * factor;
    channels = ((channels + ((channels >> 8) & apart) + halves) >> 8) & apart;
    return QRgb(channels) | QRgb(channels >> 24);
}

/// The colour in the form that a painter blends.
QRgb premultiplied(const QColor &color, double opacity)
{
    const QRgba64 rgba = color.rgba64();
    const int alpha = (rgba.alpha() * qRound(opacity * opacitySteps)) / opacitySteps;
    return QRgba64::fromRgba64(rgba.red(), rgba.green(), rgba.blue(), quint16(alpha)).premultiplied().toArgb32();
}

/// Mixes a colour with pixels of premultiplied pictures.
struct PremultipliedMixing
{
    static QRgb mixed(QRgb pixel, QRgb color, uint below) { return color + scaled(pixel, below); }
    static void mix(QRgb *pixels, int count, QRgb color, uint below);
};

// Bytes in the loop are independent of each other, which lets compilers take sixteen at once.
Q_NEVER_INLINE void PremultipliedMixing::mix(QRgb *pixels, int count, QRgb color, uint below)
{
    const QRgb colors[pixelsAtOnce] = {color, color, color, color};
    uchar added[bytesAtOnce];
    memcpy(added, colors, sizeof(added));
    const auto factor = uchar(below);
    for (; count >= pixelsAtOnce; count -= pixelsAtOnce, pixels += pixelsAtOnce) {
        auto *bytes = reinterpret_cast<uchar *>(pixels);
        for (int i = 0; i < bytesAtOnce; ++i) {
            const auto product = quint16(bytes[i] * factor);
            bytes[i] = uchar(added[i] + (quint16(product + (product >> 8) + roundingHalf) >> 8));
        }
    }
    for (int i = 0; i < count; ++i)
        pixels[i] = mixed(pixels[i], color, below);
}

/// The same for pictures that are not premultiplied; the colour is.
struct PlainMixing
{
    // An opaque pixel is the same in both formats, and stays opaque.
    static QRgb mixed(QRgb pixel, QRgb color, uint below)
    {
        return qAlpha(pixel) == int(wholeByte) ? color + scaled(pixel, below) : mixedFaded(pixel, color, below);
    }
    static void mix(QRgb *pixels, int count, QRgb color, uint below);

private:
    static QRgb mixedFaded(QRgb pixel, QRgb color, uint below);
    static int sameAtStart(const QRgb *pixels, int count);
};

Q_NEVER_INLINE QRgb PlainMixing::mixedFaded(QRgb pixel, QRgb color, uint below)
{
    return qUnpremultiply(pixel == 0 ? color : color + scaled(qPremultiply(pixel), below));
}

int PlainMixing::sameAtStart(const QRgb *pixels, int count)
{
    if (count >= longRun && memcmp(pixels, pixels + 1, size_t(count - 1) * sizeof(QRgb)) == 0)
        return count;
    int same = 1;
    while (same < count && pixels[same] == pixels[0])
        ++same;
    return same;
}

// Equally covered pixels mostly have one colour below, whose mixture is computed once.
Q_NEVER_INLINE void PlainMixing::mix(QRgb *pixels, int count, QRgb color, uint below)
{
    for (int i = 0; i < count;) {
        const QRgb pixel = pixels[i];
        const int end = i + sameAtStart(pixels + i, count - i);
        std::fill(pixels + i, pixels + end, mixed(pixel, color, below));
        i = end;
    }
}

/// Blends a colour with pixels.
template<typename Mixing> class Overlay
{
public:
    Overlay(const PixelTarget &target, QRgb color)
        : m_bits(target.picture->bits())
        , m_bytesPerLine(target.picture->bytesPerLine())
        , m_start(-target.origin.y() * m_bytesPerLine - target.origin.x() * qsizetype(sizeof(QRgb)))
        , m_color(color)
    {
    }

    void operator()(const Coverage::Span &span)
    {
        const qsizetype place = m_start + span.y * m_bytesPerLine + span.x * qsizetype(sizeof(QRgb));
        auto *pixels = reinterpret_cast<QRgb *>(m_bits + place);
        const QRgb color = colorFor(span.coverage);
        const uint below = wholeByte - uint(qAlpha(color));
        // Most pixels of edges stand alone.
        if (below == 0)
            std::fill(pixels, pixels + span.length, color);
        else if (span.length == 1)
            *pixels = Mixing::mixed(*pixels, color, below);
        else
            Mixing::mix(pixels, span.length, color, below);
    }

private:
    QRgb colorFor(int coverage)
    {
        if (coverage == int(wholeByte))
            return m_color;
        QRgb &known = m_scaled[size_t(coverage)];
        if (known == 0)
            known = scaled(m_color, uint(coverage));
        return known;
    }

    uchar *m_bits;
    qsizetype m_bytesPerLine;
    /// Bytes from the first pixel of the picture to the place of the painter's origin.
    qsizetype m_start;
    QRgb m_color;
    /// The colour by coverage; 0 where it was not needed yet.
    std::array<QRgb, wholeByte> m_scaled{};
};

// Large enough to be worth keeping, and in use only while an outline is filled. Behind a pointer, since a compiler
// asks for the address of thread-local data again and again.
Coverage &sharedCoverage()
{
    static thread_local const auto coverage = std::make_unique<Coverage>();
    return *coverage;
}

} // namespace

void fillSolid(const FlatOutline &outline, const QColor &color, double opacity, const QRect &window,
               const PixelTarget &target)
{
    const QRgb laid = premultiplied(color, opacity);
    if (target.picture->format() == QImage::Format_ARGB32)
        sharedCoverage().sweep(outline, window, Overlay<PlainMixing>(target, laid));
    else
        sharedCoverage().sweep(outline, window, Overlay<PremultipliedMixing>(target, laid));
}

} // namespace Svg
