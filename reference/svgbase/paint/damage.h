#pragma once

#include <QtCore/QRect>
#include <QtCore/QVector>

namespace Svg {

/// Adds a rectangle to disjoint ones; those that it touches are united with it.
template<typename Rect> void addApart(QVector<Rect> *rects, Rect rect)
{
    for (int i = 0; i < rects->size();) {
        if (!rects->at(i).intersects(rect)) {
            ++i;
            continue;
        }
        rect |= rects->at(i);
        rects->remove(i);
        i = 0;
    }
    rects->append(rect);
}

/// The pixels that painting within `bounds` (painter units) may change.
QRect paintedPixels(const QRectF &bounds, const QRect &within);

/// Parts of a painted list that have changed: a few rectangles, painter units.
class Damage
{
public:
    /// Adds the pixels that painting within `bounds` may have changed.
    void add(const QRectF &bounds);
    bool isEmpty() const { return m_rects.isEmpty(); }
    /// The damaged pixels, as disjoint rectangles.
    QVector<QRect> pixels(const QRect &within) const;

private:
    QVector<QRectF> m_rects;
};

} // namespace Svg
