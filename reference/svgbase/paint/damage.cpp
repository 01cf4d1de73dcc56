#include "paint/damage.h"

namespace Svg {

namespace {

/// Reach of antialiasing beyond the painted outline, pixels, with a margin.
constexpr int smoothingMargin = 2;
/// More rectangles than this are not worth separate paintings.
constexpr int mostRects = 4;

QRectF withMargin(const QRectF &bounds)
{
    return bounds.adjusted(-smoothingMargin, -smoothingMargin, smoothingMargin, smoothingMargin);
}

double areaOf(const QRectF &rect)
{
    return rect.width() * rect.height();
}

// Unites the two that waste the least area.
void uniteNearest(QVector<QRectF> *rects)
{
    int first = 0;
    int second = 1;
    double least = -1;
    for (int i = 0; i < rects->size(); ++i) {
        for (int j = i + 1; j < rects->size(); ++j) {
            const QRectF &a = rects->at(i);
            const QRectF &b = rects->at(j);
            const double waste = areaOf(a | b) - areaOf(a) - areaOf(b);
            if (least >= 0 && waste >= least)
                continue;
            least = qMax(0.0, waste);
            first = i;
            second = j;
        }
    }
    const QRectF united = rects->at(first) | rects->at(second);
    rects->remove(second);
    rects->remove(first);
    addApart(rects, united);
}

} // namespace

QRect paintedPixels(const QRectF &bounds, const QRect &within)
{
    return bounds.isNull() ? QRect() : (withMargin(bounds) & QRectF(within)).toAlignedRect() & within;
}

void Damage::add(const QRectF &bounds)
{
    if (bounds.isNull())
        return;
    addApart(&m_rects, withMargin(bounds));
    if (m_rects.size() > mostRects)
        uniteNearest(&m_rects);
}

QVector<QRect> Damage::pixels(const QRect &within) const
{
    QVector<QRect> result;
    for (const QRectF &rect : m_rects) {
        const QRect aligned = (rect & QRectF(within)).toAlignedRect() & within;
        if (!aligned.isEmpty())
            addApart(&result, aligned);
    }
    return result;
}

} // namespace Svg
