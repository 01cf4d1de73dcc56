#include "draw/itempainter.h"

#include "inputlimits.h"

#include <QtCore/QtMath>
#include <QtGui/QPainter>

#include <memory>
#include <vector>

namespace Svg {

namespace {

constexpr QPainter::RenderHints smooth =
    QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform;

/// A group that is painted aside, or the painter itself at the bottom of the stack.
struct Layer
{
    QPainter *painter = nullptr;
    /// Opacity that everything painted here carries.
    double opacity = 1;
    /// Opacity of the finished picture.
    double pictureOpacity = 1;
    QPointF topLeft;
    std::unique_ptr<QImage> picture;
    std::unique_ptr<QPainter> ownPainter;
};

class ItemPainter
{
public:
    explicit ItemPainter(QPainter *painter);
    void paint(const QVector<DisplayItem> &items);

private:
    void paintShape(const DisplayItem &item);
    void beginLayer(const QVector<DisplayItem> &items, int begin);
    void endLayer();
    bool takePixels(const QSizeF &size);

    std::vector<Layer> m_layers;
    double m_pixelRatio;
    double m_pixelsLeft = Limits::layerPixels;
};

ItemPainter::ItemPainter(QPainter *painter)
    : m_pixelRatio(painter->device() ? painter->device()->devicePixelRatioF() : 1)
{
    Layer bottom;
    bottom.painter = painter;
    bottom.opacity = painter->opacity();
    m_layers.push_back(std::move(bottom));
}

void ItemPainter::paintShape(const DisplayItem &item)
{
    const Layer &layer = m_layers.back();
    QPainter *painter = layer.painter;
    painter->setOpacity(layer.opacity * item.opacity);
    painter->setPen(item.pen);
    painter->setBrush(item.fill);
    painter->drawPath(item.path);
    if (!item.strokePath.isEmpty())
        painter->fillPath(item.strokePath, item.pen.brush());
}

// What the layer's items cover, so that the picture is no larger than needed.
QRectF coveredArea(const QVector<DisplayItem> &items, int begin)
{
    QRectF area;
    int depth = 0;
    for (int i = begin; i < items.size(); ++i) {
        const DisplayItem &item = items.at(i);
        if (item.kind == DisplayItem::Shape)
            area |= item.bounds;
        else
            depth += item.kind == DisplayItem::BeginLayer ? 1 : -1;
        if (depth == 0)
            break;
    }
    return area;
}

bool ItemPainter::takePixels(const QSizeF &size)
{
    const double pixels = size.width() * size.height() * m_pixelRatio * m_pixelRatio;
    if (!(pixels >= 1 && pixels <= m_pixelsLeft) || int(m_layers.size()) > Limits::layerDepth)
        return false;
    m_pixelsLeft -= pixels;
    return true;
}

void ItemPainter::beginLayer(const QVector<DisplayItem> &items, int begin)
{
    const Layer &below = m_layers.back();
    const QRectF covered = coveredArea(items, begin).adjusted(-1, -1, 1, 1);
    const QRect area = (covered & QRectF(below.painter->window()).translated(below.topLeft)).toAlignedRect();
    Layer layer;
    if (!takePixels(area.size())) {
        // Without a picture of its own the group's shapes carry its opacity one by one.
        layer.painter = below.painter;
        layer.opacity = below.opacity * items.at(begin).opacity;
        layer.topLeft = below.topLeft;
        m_layers.push_back(std::move(layer));
        return;
    }
    layer.pictureOpacity = below.opacity * items.at(begin).opacity;
    layer.topLeft = area.topLeft();
    layer.picture = std::make_unique<QImage>(area.size() * m_pixelRatio, QImage::Format_ARGB32_Premultiplied);
    layer.picture->setDevicePixelRatio(m_pixelRatio);
    layer.picture->fill(Qt::transparent);
    layer.ownPainter = std::make_unique<QPainter>(layer.picture.get());
    layer.painter = layer.ownPainter.get();
    layer.painter->setRenderHints(smooth);
    layer.painter->translate(-area.topLeft());
    m_layers.push_back(std::move(layer));
}

void ItemPainter::endLayer()
{
    Layer done = std::move(m_layers.back());
    m_layers.pop_back();
    if (!done.picture)
        return;
    done.ownPainter->end();
    QPainter *painter = m_layers.back().painter;
    painter->setOpacity(done.pictureOpacity);
    painter->drawImage(done.topLeft, *done.picture);
}

void ItemPainter::paint(const QVector<DisplayItem> &items)
{
    m_layers.front().painter->setRenderHints(smooth);
    for (int i = 0; i < items.size(); ++i) {
        switch (items.at(i).kind) {
        case DisplayItem::Shape:
            paintShape(items.at(i));
            break;
        case DisplayItem::BeginLayer:
            beginLayer(items, i);
            break;
        case DisplayItem::EndLayer:
            endLayer();
            break;
        }
    }
}

} // namespace

void paintItems(QPainter *painter, const QVector<DisplayItem> &items)
{
    ItemPainter(painter).paint(items);
}

} // namespace Svg
