#include "filters/convolution.h"

#include <array>

namespace Svg {

namespace {

constexpr int greatest = 255;
using Channels = std::array<double, 4>;

int wrapped(int place, int first, int count)
{
    const int distance = (place - first) % count;
    return first + (distance < 0 ? distance + count : distance);
}

class Convolver
{
public:
    Convolver(const QImage &source, const Convolution &convolution, const QRect &area)
        : m_source(source)
        , m_convolution(convolution)
        , m_area(area)
    {
    }

    QRgb pixel(int x, int y) const;

private:
    QRgb at(int x, int y) const { return reinterpret_cast<const QRgb *>(m_source.constScanLine(y))[x]; }
    QRgb neighbour(int x, int y) const;
    Channels sum(int x, int y) const;

    const QImage &m_source;
    const Convolution &m_convolution;
    QRect m_area;
};

QRgb Convolver::neighbour(int x, int y) const
{
    if (m_area.contains(x, y))
        return at(x, y);
    if (m_convolution.edges == Convolution::Transparent)
        return 0;
    if (m_convolution.edges == Convolution::Wrap)
        return at(wrapped(x, m_area.left(), m_area.width()), wrapped(y, m_area.top(), m_area.height()));
    return at(qBound(m_area.left(), x, m_area.right()), qBound(m_area.top(), y, m_area.bottom()));
}

// The kernel is rotated by half a turn relative to the pixels.
Channels Convolver::sum(int x, int y) const
{
    const QSize &order = m_convolution.order;
    Channels total{};
    for (int row = 0; row < order.height(); ++row) {
        for (int column = 0; column < order.width(); ++column) {
            const QRgb found = neighbour(x - m_convolution.target.x() + column, y - m_convolution.target.y() + row);
            const QRgb color = m_convolution.preservesAlpha ? qUnpremultiply(found) : found;
            const double factor =
                m_convolution.factors.at((order.height() - 1 - row) * order.width() + order.width() - 1 - column);
            total[0] += factor * qRed(color);
            total[1] += factor * qGreen(color);
            total[2] += factor * qBlue(color);
            total[3] += factor * qAlpha(color);
        }
    }
    return total;
}

QRgb Convolver::pixel(int x, int y) const
{
    const int before = qAlpha(at(x, y));
    const Channels total = sum(x, y);
    const double added = m_convolution.bias * before;
    const auto component = [&](size_t channel, int limit) {
        return qRound(qBound(0.0, total[channel] + added, double(limit)));
    };
    if (m_convolution.preservesAlpha)
        return qPremultiply(qRgba(component(0, greatest), component(1, greatest), component(2, greatest), before));
    const int alpha = component(3, greatest);
    return qRgba(component(0, alpha), component(1, alpha), component(2, alpha), alpha);
}

} // namespace

void convolvePicture(QImage *picture, const Convolution &convolution, const QRect &area)
{
    const QRect changed = area & picture->rect();
    if (convolution.factors.isEmpty() || changed.isEmpty())
        return;
    const QImage source = *picture;
    const Convolver convolver(source, convolution, changed);
    for (int y = changed.top(); y <= changed.bottom(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(picture->scanLine(y));
        for (int x = changed.left(); x <= changed.right(); ++x)
            row[x] = convolver.pixel(x, y);
    }
}

} // namespace Svg
