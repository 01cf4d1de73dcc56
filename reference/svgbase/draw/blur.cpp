#include "draw/pixelfilters.h"
#include "draw/pixellines.h"

#include <QtCore/QtMath>

#include <algorithm>

namespace Svg {

namespace {

/// From here on three box blurs look like the weights of a bell curve.
constexpr double boxDeviation = 2;
/// Below this nothing changes.
constexpr double smallestDeviation = 0.01;
constexpr double reachOfWeights = 3;

/// Averages `before` values before each one to `after` values after it.
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

void blurByBoxes(QImage *picture, double deviation, bool columns)
{
    const int length = columns ? picture->height() : picture->width();
    // Wider boxes than the picture make no difference that could be seen.
    const int size = int(qMin(deviation * 3 * std::sqrt(2 * M_PI) / 4 + 0.5, 2.0 * length + 1));
    const int half = size / 2;
    const bool odd = size % 2 == 1;
    // An even size is shifted to one side, then to the other, then one larger (Filter Effects 1 §9.14).
    const BoxBlur passes[] = {odd ? BoxBlur(half, half) : BoxBlur(half, half - 1),
                              odd ? BoxBlur(half, half) : BoxBlur(half - 1, half), BoxBlur(half, half)};
    PixelLine other(length);
    changeLines(picture, columns, [&](uchar *line, int count) {
        passes[0].apply(line, other.data(), count);
        passes[1].apply(other.data(), line, count);
        passes[2].apply(line, other.data(), count);
        std::copy(other.constBegin(), other.constEnd(), line);
    });
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

void blurByWeights(QImage *picture, double deviation, bool columns)
{
    const QVector<double> weights = bellCurve(deviation);
    const int reach = weights.size() / 2;
    PixelLine other(columns ? picture->height() : picture->width());
    changeLines(picture, columns, [&](uchar *line, int count) {
        for (int i = 0; i < count; ++i) {
            double sum = 0;
            for (int k = qMax(-reach, -i); k <= qMin(reach, count - 1 - i); ++k)
                sum += weights[k + reach] * line[i + k];
            other[i] = uchar(qMin(255, qRound(sum)));
        }
        std::copy(other.constBegin(), other.constEnd(), line);
    });
}

void blurLines(QImage *picture, double deviation, bool columns)
{
    if (!(deviation > smallestDeviation))
        return;
    if (deviation < boxDeviation)
        blurByWeights(picture, deviation, columns);
    else
        blurByBoxes(picture, deviation, columns);
}

} // namespace

void blurPicture(QImage *picture, double across, double down)
{
    blurLines(picture, across, false);
    blurLines(picture, down, true);
}

} // namespace Svg
