#include "filters/pixelfilters.h"
#include "filters/pixellines.h"

#include <QtCore/QtMath>

#include <algorithm>
#include <functional>

namespace Svg {

namespace {

/// From this deviation on three box blurs approximate the weights of a bell curve.
constexpr double boxDeviation = 2;
/// Below this deviation nothing changes.
constexpr double smallestDeviation = 0.01;
constexpr double reachOfWeights = 3;
/// How far beyond its edges a picture is extended at most, as a multiple of its size.
constexpr int farthestEdge = 2;

/// Averages each value with the `before` values before it and the `after` values after it.
class BoxBlur
{
public:
    BoxBlur(int before, int after)
        : m_before(before)
        , m_after(after)
    {
    }

    void apply(const uchar *from, uchar *to, int length) const
    {
        const qint64 size = m_before + m_after + 1;
        qint64 sum = 0;
        for (int i = 0; i < std::min(m_after, length); ++i)
            sum += from[i];
        for (int i = 0; i < length; ++i) {
            if (i + m_after < length)
                sum += from[i + m_after];
            if (i - m_before - 1 >= 0)
                sum -= from[i - m_before - 1];
            to[i] = uchar((sum + size / 2) / size);
        }
    }

private:
    int m_before;
    int m_after;
};

// Blurs lines in place; `other` has room for one line.
using LineBlur = std::function<void(uchar *line, uchar *other, int count)>;

LineBlur boxBlur(double deviation, int length)
{
    // Boxes wider than the picture make no visible difference.
    const int size = int(qMin(deviation * 3 * std::sqrt(2 * M_PI) / 4 + 0.5, 2.0 * length + 1));
    const int half = size / 2;
    const bool odd = size % 2 == 1;
    // An even size is shifted to one side, then to the other, then one larger (Filter Effects 1 §9.14).
    const BoxBlur first = odd ? BoxBlur(half, half) : BoxBlur(half, half - 1);
    const BoxBlur second = odd ? BoxBlur(half, half) : BoxBlur(half - 1, half);
    const BoxBlur third(half, half);
    return [=](uchar *line, uchar *other, int count) {
        first.apply(line, other, count);
        second.apply(other, line, count);
        third.apply(line, other, count);
        std::copy(other, other + count, line);
    };
}

QVector<double> bellCurve(double deviation)
{
    const int reach = qCeil(deviation * reachOfWeights);
    QVector<double> weights(2 * reach + 1);
    double sum = 0;
    for (int i = -reach; i <= reach; ++i) {
        weights[i + reach] = std::exp(-i * i / (2 * deviation * deviation));
        sum += weights[i + reach];
    }
    for (double &weight : weights)
        weight /= sum;
    return weights;
}

LineBlur weightedBlur(double deviation)
{
    const QVector<double> weights = bellCurve(deviation);
    const int reach = weights.size() / 2;
    return [=](uchar *line, uchar *other, int count) {
        for (int i = 0; i < count; ++i) {
            double sum = 0;
            for (int k = qMax(-reach, -i); k <= qMin(reach, count - 1 - i); ++k)
                sum += weights[k + reach] * line[i + k];
            other[i] = uchar(qMin(255, qRound(sum)));
        }
        std::copy(other, other + count, line);
    };
}

/// The part of a line that belongs to the picture.
struct Span
{
    int begin;
    int length;
};

// The picture with its extension on both sides.
void extend(const uchar *line, const Span &span, EdgeMode edges, int reach, PixelLine *extended)
{
    for (int i = 0; i < extended->size(); ++i) {
        int from = i - reach;
        if (edges == EdgeMode::Wrap)
            from = (from % span.length + span.length) % span.length;
        (*extended)[i] = line[span.begin + qBound(0, from, span.length - 1)];
    }
}

void blurExtended(QImage *picture, const LineBlur &blur, bool columns, int reach, EdgeMode edges, const QRect &area)
{
    const Span span = columns ? Span{area.y(), area.height()} : Span{area.x(), area.width()};
    PixelLine extended(span.length + 2 * reach);
    PixelLine other(extended.size());
    changeLines(picture, columns, [&](uchar *line, int count) {
        extend(line, span, edges, reach, &extended);
        blur(extended.data(), other.data(), extended.size());
        std::fill(line, line + count, uchar(0));
        std::copy_n(extended.constData() + reach, span.length, line + span.begin);
    });
}

void blurLines(QImage *picture, double deviation, bool columns, EdgeMode edges, const QRect &area)
{
    if (!(deviation > smallestDeviation))
        return;
    const int length = columns ? picture->height() : picture->width();
    // With repeated edges, a wider blur makes no visible difference.
    if (edges != EdgeMode::None)
        deviation = qMin(deviation, farthestEdge * length / reachOfWeights);
    const LineBlur blur =
        deviation < boxDeviation
            ? weightedBlur(deviation)
            : boxBlur(deviation, edges == EdgeMode::None ? length : length * (2 * farthestEdge + 1));
    if (edges != EdgeMode::None && !area.isEmpty()) {
        const int farthest = farthestEdge * length;
        const int reach = int(qMin(std::ceil(deviation * reachOfWeights), double(farthest))) + 1;
        blurExtended(picture, blur, columns, reach, edges, area);
        return;
    }
    PixelLine other(length);
    changeLines(picture, columns, [&](uchar *line, int count) { blur(line, other.data(), count); });
}

} // namespace

void blurPicture(QImage *picture, double across, double down, EdgeMode edges, const QRect &area)
{
    blurLines(picture, across, false, edges, area);
    blurLines(picture, down, true, edges, area);
}

} // namespace Svg
