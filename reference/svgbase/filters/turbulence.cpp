#include "filters/turbulence.h"

#include <array>
#include <cmath>

namespace Svg {

namespace {

constexpr int latticeSize = 256;
constexpr int channelCount = 4;
/// Keeps lattice coordinates of ordinary positions positive, as in the standard.
constexpr double latticeOffset = 4096;
/// Above it the fractions of lattice coordinates are lost, and with them the noise.
constexpr double farthestPlace = 1e12;
constexpr int greatest = 255;

/// The random number generator of the standard: a linear congruential one, modulo 2^31 - 1.
class RandomNumbers
{
public:
    explicit RandomNumbers(double start)
    {
        const auto whole = qint64(qBound(-double(modulus), start, double(modulus)));
        m_state = whole <= 0 ? -(whole % (modulus - 1)) + 1 : qMin(whole, modulus - 1);
    }
    qint64 next() { return m_state = m_state * factor % modulus; }

private:
    static constexpr qint64 modulus = 2147483647;
    static constexpr qint64 factor = 16807;
    qint64 m_state;
};

/// How the lattice repeats, so that a tile's edges match.
struct Stitching
{
    double width = 0;
    double height = 0;
    double wrapX = 0;
    double wrapY = 0;

    void doubleFrequency()
    {
        width *= 2;
        height *= 2;
        wrapX = 2 * wrapX - latticeOffset;
        wrapY = 2 * wrapY - latticeOffset;
    }
};

struct Gradient
{
    double x = 0;
    double y = 0;
    double along(double dx, double dy) const { return dx * x + dy * y; }
};

double eased(double t)
{
    return t * t * (3 - 2 * t);
}

double between(double share, double a, double b)
{
    return a + share * (b - a);
}

/// A position along one axis: the lattice lines around it, and the distance from the first.
struct LatticePlace
{
    LatticePlace(double place, double wrap, double period)
    {
        const double line = std::floor(place);
        fraction = place - line;
        first = index(line, wrap, period);
        second = index(line + 1, wrap, period);
    }
    static int index(double line, double wrap, double period)
    {
        const double repeated = period > 0 && line >= wrap ? line - period : line;
        return int(qint64(repeated) & (latticeSize - 1));
    }

    double fraction;
    int first;
    int second;
};

using Channels = std::array<double, channelCount>;

/// Gradient noise on a lattice of random directions, for all channels.
class Noise
{
public:
    explicit Noise(double start);
    Channels at(const QPointF &place, const Stitching &stitching) const;

private:
    size_t corner(int column, int row) const
    {
        return size_t(m_order[size_t((m_order[size_t(column)] + row) & (latticeSize - 1))]);
    }

    std::array<int, latticeSize> m_order{};
    std::array<std::array<Gradient, latticeSize>, channelCount> m_gradients{};
};

Gradient randomGradient(RandomNumbers *numbers)
{
    const auto component = [numbers] {
        return double(numbers->next() % (2 * latticeSize) - latticeSize) / latticeSize;
    };
    const double x = component();
    const double y = component();
    const double length = std::hypot(x, y);
    return length > 0 ? Gradient{x / length, y / length} : Gradient();
}

Noise::Noise(double start)
{
    RandomNumbers numbers(start);
    for (auto &channel : m_gradients)
        for (Gradient &gradient : channel)
            gradient = randomGradient(&numbers);
    for (int i = 0; i < latticeSize; ++i)
        m_order[size_t(i)] = i;
    for (int i = latticeSize - 1; i > 0; --i)
        std::swap(m_order[size_t(i)], m_order[size_t(numbers.next() % latticeSize)]);
}

Channels Noise::at(const QPointF &place, const Stitching &stitching) const
{
    Channels result{};
    if (!(qAbs(place.x()) < farthestPlace && qAbs(place.y()) < farthestPlace))
        return result;
    const LatticePlace x(place.x() + latticeOffset, stitching.wrapX, stitching.width);
    const LatticePlace y(place.y() + latticeOffset, stitching.wrapY, stitching.height);
    const size_t corners[] = {corner(x.first, y.first), corner(x.second, y.first), corner(x.first, y.second),
                              corner(x.second, y.second)};
    const double dx = x.fraction;
    const double dy = y.fraction;
    const double shareX = eased(dx);
    const double shareY = eased(dy);
    for (size_t channel = 0; channel < channelCount; ++channel) {
        const auto &gradients = m_gradients[channel];
        const double above =
            between(shareX, gradients[corners[0]].along(dx, dy), gradients[corners[1]].along(dx - 1, dy));
        const double below =
            between(shareX, gradients[corners[2]].along(dx, dy - 1), gradients[corners[3]].along(dx - 1, dy - 1));
        result[channel] = between(shareY, above, below);
    }
    return result;
}

// The nearest frequency, by ratio, with a whole number of waves in the tile.
double fittedFrequency(double frequency, double length)
{
    if (frequency <= 0 || length <= 0)
        return frequency;
    const double low = std::floor(length * frequency) / length;
    const double high = std::ceil(length * frequency) / length;
    return low > 0 && frequency / low < high / frequency ? low : high;
}

class TurbulencePainter
{
public:
    explicit TurbulencePainter(const Turbulence &turbulence);
    QRgb colorAt(const QPointF &place) const;

private:
    Channels sum(const QPointF &place) const;

    Noise m_noise;
    QSizeF m_frequency;
    Stitching m_stitching;
    int m_octaves;
    bool m_fractal;
};

TurbulencePainter::TurbulencePainter(const Turbulence &turbulence)
    : m_noise(turbulence.start)
    , m_frequency(turbulence.frequency)
    , m_octaves(turbulence.octaves)
    , m_fractal(turbulence.fractal)
{
    if (!turbulence.stitches)
        return;
    const QRectF &tile = turbulence.tile;
    m_frequency = QSizeF(fittedFrequency(m_frequency.width(), tile.width()),
                         fittedFrequency(m_frequency.height(), tile.height()));
    m_stitching.width = std::floor(tile.width() * m_frequency.width() + 0.5);
    m_stitching.height = std::floor(tile.height() * m_frequency.height() + 0.5);
    m_stitching.wrapX = std::floor(tile.x() * m_frequency.width() + latticeOffset + m_stitching.width);
    m_stitching.wrapY = std::floor(tile.y() * m_frequency.height() + latticeOffset + m_stitching.height);
}

Channels TurbulencePainter::sum(const QPointF &place) const
{
    QPointF at(place.x() * m_frequency.width(), place.y() * m_frequency.height());
    Stitching stitching = m_stitching;
    Channels total{};
    double share = 1;
    for (int octave = 0; octave < m_octaves; ++octave) {
        const Channels noise = m_noise.at(at, stitching);
        for (size_t channel = 0; channel < channelCount; ++channel)
            total[channel] += share * (m_fractal ? noise[channel] : qAbs(noise[channel]));
        at *= 2;
        share /= 2;
        stitching.doubleFrequency();
    }
    return total;
}

QRgb TurbulencePainter::colorAt(const QPointF &place) const
{
    const Channels total = sum(place);
    const auto component = [&](size_t channel) {
        const double value = m_fractal ? (total[channel] + 1) / 2 : total[channel];
        return qBound(0, qRound(value * greatest), greatest);
    };
    return qPremultiply(qRgba(component(0), component(1), component(2), component(3)));
}

} // namespace

void fillWithTurbulence(QImage *picture, const Turbulence &turbulence, const QTransform &toUser)
{
    const TurbulencePainter painter(turbulence);
    for (int y = 0; y < picture->height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(picture->scanLine(y));
        for (int x = 0; x < picture->width(); ++x)
            row[x] = painter.colorAt(toUser.map(QPointF(x, y)));
    }
}

} // namespace Svg
