#pragma once

#include <QtCore/QRect>
#include <QtCore/QVector>

namespace Svg {

struct DisplayItem;

/// Adds a rectangle to others that are apart; what it touches becomes one with it.
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

/// What of a painted list no longer looks as it was painted: a few rectangles, painter units.
class Damage
{
public:
    /// Adds what painting within `bounds` may have changed.
    void add(const QRectF &bounds);
    bool isEmpty() const { return m_rects.isEmpty(); }
    /// The damaged pixels, as rectangles that are apart.
    QVector<QRect> pixels(const QRect &within) const;

private:
    QVector<QRectF> m_rects;
};

/// Grows a rectangle of pixels until it holds the whole of every item that it touches and whose pixels depend on
/// where its painting begins: layers, images, and what is painted with a gradient or a pattern.
QRect grownToItems(const QRect &rect, const QVector<DisplayItem> &items, const QRect &within);

} // namespace Svg
