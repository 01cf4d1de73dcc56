#include "paint/itempainter.h"

#include "grammar/inputlimits.h"
#include "paint/compositionmodes.h"
#include "paint/damage.h"
#include "paint/filtercanvas.h"
#include "paint/filterreach.h"
#include "paint/filterrunner.h"
#include "paint/itemmapping.h"
#include "paint/paintingwork.h"
#include "paint/sidepicture.h"
#include "paint/solidpainting.h"
#include "raster/blending.h"
#include "scene/layereffects.h"

#include <QtCore/QtMath>

#include <optional>

namespace Svg {

namespace {

/// Reach of antialiasing beyond an outline, pixels.
constexpr int smoothingReach = 1;
/// Filters may need pixels from anywhere; pictures are limited to this distance.
constexpr double farthestPixel = 1 << 24;
/// Cost of blending by hand, in layer pixels.
constexpr double blendCost = 20;
/// Distance from a pixel's edge within which a rectangle counts as ending there.
constexpr double alignmentTolerance = 1e-3;
/// Bounds of layers while a picture is recorded.
constexpr QRect recordedWindow(-8192, -8192, 16384, 16384);

/// A group that is painted into a layer, or the painter itself at the bottom of the stack.
struct Layer
{
    QPainter *painter = nullptr;
    /// Opacity of everything painted here.
    double opacity = 1;
    /// Opacity of the finished picture.
    double pictureOpacity = 1;
    /// The paintable area.
    QRect area;
    PixelTarget pixels;
    /// Null for none.
    const MappedEffects *effects = nullptr;
    /// Null for a group that is painted directly on its backdrop.
    std::unique_ptr<SidePicture> picture;
    /// Canvas of the picture until it is filtered, unless the pixels of the painter below serve as one.
    std::optional<FilterCanvas> canvas;
    /// Whether the painter below was given a clip for this group.
    bool clips = false;
    /// Index after the last member of the group.
    size_t end = 0;
};

class ItemPainter
{
public:
    ItemPainter(QPainter *painter, const QRect &area, double pixelRatio, PaintBudget *budget,
                const PixelTarget &pixels);
    void paint(const MappedItems &items);

private:
    void takePaint(QPainter *painter, const MappedShape &shape);
    void drawOutline(QPainter *painter, const MappedItem &item);
    void paintShape(const MappedItem &item);
    void paintPicture(const MappedItem &item);
    bool beginLayer(const MappedItem &group, size_t end);
    bool beginStraight(const MappedItem &group, Layer *layer);
    void endLayer();
    Layer *pictureBelow();
    bool beginPicture(const MappedEffects *effects, Layer *layer);
    bool filtered(const MappedEffects &effects, const Layer &layer, QImage *picture);
    void leaveCanvas(Layer *layer);
    void finish(Layer *layer);
    bool blendByHand(const Layer &done, BlendMode mode);
    void paintLayer(Layer *done);
    std::unique_ptr<SidePicture> painted(const MappedItems &items, const QRect &area);
    std::unique_ptr<SidePicture> painted(const MappedItems &items, const Layer &layer);

    std::vector<Layer> m_layers;
    /// The painter that has pen and brush of a shape, and that shape.
    const QPainter *m_paintOwner = nullptr;
    const MappedShape *m_paintSource = nullptr;
    double m_pixelRatio;
    PaintBudget *m_budget;
};

ItemPainter::ItemPainter(QPainter *painter, const QRect &area, double pixelRatio, PaintBudget *budget,
                         const PixelTarget &pixels)
    : m_pixelRatio(pixelRatio)
    , m_budget(budget)
{
    Layer bottom;
    bottom.painter = painter;
    bottom.opacity = painter->opacity();
    bottom.area = area;
    bottom.pixels = pixels;
    m_layers.push_back(std::move(bottom));
}

// Neighbours often have the same paint, and a change costs the painter more than the comparison.
void ItemPainter::takePaint(QPainter *painter, const MappedShape &shape)
{
    const MappedShape *last = m_paintOwner == painter ? m_paintSource : nullptr;
    if (!last || last->pen != shape.pen)
        painter->setPen(shape.pen);
    if (!last || last->fill != shape.fill)
        painter->setBrush(shape.fill);
    m_paintOwner = painter;
    m_paintSource = &shape;
}

bool reaches(const QRectF &bounds, const QRect &area)
{
    return !paintedPixels(bounds, area).isEmpty();
}

// A deep copy of the path; a mere copy shares its data until it changes.
QPainterPath detachedCopy(const QPainterPath &path)
{
    QPainterPath copy = path;
    copy.setFillRule(path.fillRule() == Qt::WindingFill ? Qt::OddEvenFill : Qt::WindingFill);
    copy.setFillRule(path.fillRule());
    return copy;
}

// A drawn path keeps data of the painters, 3 KB at least. Where there are many, draw copies of them.
void ItemPainter::drawOutline(QPainter *painter, const MappedItem &item)
{
    const auto &shape = std::get<MappedShape>(item.content);
    if (shape.mapping)
        painter->drawPath(mappedOutline(item));
    else
        painter->drawPath(++m_budget->outlines <= Limits::keptOutlines ? shape.path : detachedCopy(shape.path));
}

void ItemPainter::paintShape(const MappedItem &item)
{
    const auto &shape = std::get<MappedShape>(item.content);
    const Layer &layer = m_layers.back();
    const double opacity = layer.opacity * item.item.opacity;
    const PaintingWork work = paintingWork(item, layer.area, m_pixelRatio);
    m_budget->outlineWork -= work.elements;
    m_budget->work -= work.elements + work.pixels;
    if (m_budget->lacksWork() || !reaches(item.bounds, layer.area))
        return;
    const bool keep = m_budget->outlines < Limits::keptOutlines;
    if (paintSolid(item, opacity, layer.pixels, keep)) {
        ++m_budget->outlines;
        return;
    }
    m_budget->work -= work.crowding;
    if (m_budget->lacksWork())
        return;
    QPainter *painter = layer.painter;
    painter->setOpacity(opacity);
    takePaint(painter, shape);
    if (!shape.smooth)
        painter->setRenderHint(QPainter::Antialiasing, false);
    drawOutline(painter, item);
    if (!shape.strokePath.isEmpty())
        painter->fillPath(shape.strokePath, shape.pen.brush());
    if (!shape.smooth)
        painter->setRenderHint(QPainter::Antialiasing);
}

void ItemPainter::paintPicture(const MappedItem &item)
{
    const auto &picture = std::get<MappedPicture>(item.content);
    const Layer &layer = m_layers.back();
    if (picture.image.isNull() || !reaches(item.bounds, layer.area))
        return;
    m_budget->work -= imageWork(item.bounds, layer.area, m_pixelRatio);
    if (m_budget->lacksWork())
        return;
    QPainter *painter = layer.painter;
    const QTransform before = painter->worldTransform();
    painter->setOpacity(layer.opacity * item.item.opacity);
    painter->setRenderHint(QPainter::SmoothPixmapTransform, picture.smooth);
    painter->setWorldTransform(picture.toPainter, true);
    painter->drawImage(picture.target, picture.image, picture.source);
    painter->setWorldTransform(before);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
}

const MappedEffects *effectsOf(const MappedItem &group)
{
    return std::get<MappedGroup>(group.content).effects.get();
}

// A filter may move or blur pixels from outside of the painted area.
QRectF inputArea(const MappedEffects *effects, const QRect &area)
{
    if (!effects || !effects->source->filter)
        return area;
    const QTransform &toPainter = effects->filter.toPainter;
    const QSizeF reach = filterReach(*effects->source->filter, toPainter);
    const QSizeF size = toPainter.mapRect(QRectF(QPointF(), reach)).size();
    const QRectF grown = QRectF(area).adjusted(-size.width(), -size.height(), size.width(), size.height());
    return grown & QRectF(QPointF(-farthestPixel, -farthestPixel), QPointF(farthestPixel, farthestPixel));
}

bool endsAtPixels(double edge, double pixelRatio)
{
    const double pixels = edge * pixelRatio;
    return qAbs(pixels - std::round(pixels)) < alignmentTolerance;
}

bool isOfPixels(const QRectF &rect, double pixelRatio)
{
    return endsAtPixels(rect.left(), pixelRatio) && endsAtPixels(rect.right(), pixelRatio) &&
           endsAtPixels(rect.top(), pixelRatio) && endsAtPixels(rect.bottom(), pixelRatio);
}

QRect wholePixels(const QRectF &rect)
{
    return QRect(QPoint(qRound(rect.left()), qRound(rect.top())),
                 QPoint(qRound(rect.right()) - 1, qRound(rect.bottom()) - 1));
}

bool onlyCuts(const LayerEffects &effects)
{
    return effects.hasRegion && !effects.filter && !effects.clips && !effects.masks &&
           effects.blendMode == BlendMode::Normal && !effects.isolated;
}

// A group that is only clipped needs no picture where nothing leaves its rectangle, or where that ends at whole
// pixels.
bool ItemPainter::beginStraight(const MappedItem &group, Layer *layer)
{
    const MappedEffects *effects = effectsOf(group);
    if (!effects || group.item.opacity < 1 || !effects->regionIsRect || !onlyCuts(*effects->source))
        return false;
    const QRectF rect = effects->region.controlPointRect();
    if (!effects->holdsContent && !isOfPixels(rect, m_pixelRatio))
        return false;
    const Layer &below = m_layers.back();
    layer->clips = !effects->holdsContent;
    if (layer->clips && below.painter->worldTransform().type() > QTransform::TxScale)
        return false;
    layer->painter = below.painter;
    layer->opacity = below.opacity;
    layer->pixels = below.pixels;
    if (layer->clips) {
        layer->pixels.window &= wholePixels(rect);
        layer->painter->save();
        layer->painter->setClipRect(rect, Qt::IntersectClip);
    }
    return true;
}

// False when nothing of the layer is visible, so that all of it is skipped.
bool ItemPainter::beginLayer(const MappedItem &group, size_t end)
{
    const Layer &below = m_layers.back();
    const MappedEffects *effects = effectsOf(group);
    const QRectF reach = group.bounds.adjusted(-smoothingReach, -smoothingReach, smoothingReach, smoothingReach);
    Layer layer;
    layer.end = end;
    layer.area = (reach & inputArea(effects, below.area)).toAlignedRect();
    if (layer.area.isEmpty())
        return false;
    if (beginStraight(group, &layer)) {
        m_layers.push_back(std::move(layer));
        return true;
    }
    if (beginPicture(effects, &layer)) {
        layer.painter = layer.picture->painter();
        layer.pixels = layer.picture->pixels();
        layer.pictureOpacity = below.opacity * group.item.opacity;
        layer.effects = effects;
    } else if (effects) {
        return false;
    } else {
        // Without a picture of its own the group's shapes carry its opacity one by one.
        layer.painter = below.painter;
        layer.pixels = below.pixels;
        layer.opacity = below.opacity * group.item.opacity;
    }
    m_layers.push_back(std::move(layer));
    return true;
}

// The pixels of a canvas that a layer takes.
QRect canvasArea(const FilterCanvas &canvas, const QRect &area)
{
    const QRectF mapped = canvas.fromPainter.mapRect(QRectF(area));
    const QRectF needed = canvas.needed.isNull() ? mapped : mapped & canvas.needed;
    return needed.adjusted(-smoothingReach, -smoothingReach, smoothingReach, smoothingReach).toAlignedRect();
}

bool ItemPainter::beginPicture(const MappedEffects *effects, Layer *layer)
{
    if (effects && effects->source->filter)
        layer->canvas = filterCanvas(*effects->source->filter, effects->filter.toPainter);
    if (layer->canvas)
        layer->picture = SidePicture::make(canvasArea(*layer->canvas, layer->area), m_pixelRatio, m_budget,
                                           layer->canvas->fromPainter);
    else
        layer->picture = SidePicture::make(layer->area, m_pixelRatio, m_budget);
    return layer->picture != nullptr;
}

std::unique_ptr<SidePicture> ItemPainter::painted(const MappedItems &items, const QRect &area)
{
    std::unique_ptr<SidePicture> picture = SidePicture::make(area, m_pixelRatio, m_budget);
    if (picture)
        ItemPainter(picture->painter(), area, m_pixelRatio, m_budget, picture->pixels()).paint(items);
    return picture;
}

// In the pixels of the layer's own picture.
std::unique_ptr<SidePicture> ItemPainter::painted(const MappedItems &items, const Layer &layer)
{
    if (!layer.canvas)
        return painted(items, layer.area);
    std::unique_ptr<SidePicture> picture =
        SidePicture::make(layer.picture->area(), m_pixelRatio, m_budget, layer.canvas->fromPainter);
    if (picture)
        ItemPainter(picture->painter(), layer.area, m_pixelRatio, m_budget, picture->pixels()).paint(items);
    return picture;
}

MappedItems filledOutline(const QPainterPath &path)
{
    MappedItems items(1);
    items.front().bounds = path.controlPointRect();
    auto &shape = items.front().content.emplace<MappedShape>();
    shape.path = path;
    shape.fill = Qt::black;
    shape.elementCount = path.elementCount();
    shape.outlineLength = paintedLength(shape);
    return items;
}

// A coverage beyond the budget hides the picture completely.
void keepWhere(QImage *picture, const std::unique_ptr<SidePicture> &coverage)
{
    if (coverage)
        keepCovered(picture, *coverage->finished());
    else
        picture->fill(Qt::transparent);
}

bool ItemPainter::filtered(const MappedEffects &effects, const Layer &layer, QImage *picture)
{
    FilterServices services;
    services.takePixels = [this](double pixels) {
        m_budget->left -= pixels;
        return m_budget->left >= 0;
    };
    services.holdPixels = [this](double pixels) {
        m_budget->open += pixels;
        m_budget->lacksPixels = m_budget->lacksPixels || m_budget->open > m_budget->mostOpen;
        return m_budget->open <= m_budget->mostOpen;
    };
    services.paint = [this, &layer, &effects](int step, int place) {
        const std::unique_ptr<SidePicture> side = painted(effects.filter.images.at({step, place}), layer);
        QImage image = side ? *side->finished() : QImage();
        image.setDevicePixelRatio(1);
        return image;
    };
    const QPoint corner = layer.picture->area().topLeft();
    const QTransform toCanvas = layer.canvas ? layer.canvas->fromPainter : QTransform();
    const QTransform toPixels = effects.filter.toPainter * toCanvas *
                                QTransform::fromTranslate(-corner.x(), -corner.y()) *
                                QTransform::fromScale(m_pixelRatio, m_pixelRatio);
    return runFilter(*effects.source->filter, toPixels, services, picture);
}

// The picture continues in the pixels of the painter below.
void ItemPainter::leaveCanvas(Layer *layer)
{
    if (!layer->canvas)
        return;
    std::unique_ptr<SidePicture> picture = SidePicture::make(layer->area, m_pixelRatio, m_budget);
    if (!picture) {
        // Costs more than the budget: draw nothing.
        layer->picture->image()->fill(Qt::transparent);
        return;
    }
    picture->painter()->setTransform(layer->canvas->toPainter, true);
    picture->painter()->drawImage(layer->picture->area().topLeft(), *layer->picture->image());
    picture->finished();
    layer->picture = std::move(picture);
}

void ItemPainter::finish(Layer *layer)
{
    layer->picture->finished();
    const MappedEffects *mapped = layer->effects;
    if (!mapped)
        return;
    const LayerEffects &effects = *mapped->source;
    if (effects.filter && !filtered(*mapped, *layer, layer->picture->image()))
        layer->picture->image()->fill(Qt::transparent);
    leaveCanvas(layer);
    QImage *picture = layer->picture->image();
    if (effects.hasRegion)
        keepWhere(picture, painted(filledOutline(mapped->region), layer->area));
    if (effects.clips)
        keepWhere(picture, painted(mapped->clip, layer->area));
    if (effects.masks) {
        const std::unique_ptr<SidePicture> mask = painted(mapped->mask, layer->area);
        if (mask && !effects.alphaMask)
            turnLuminanceIntoAlpha(mask->finished(), effects.linearMask);
        keepWhere(picture, mask);
    }
}

// Blended by hand where the budget allows: painters leave a trace where nothing lies on nothing, and lack four
// modes.
bool ItemPainter::blendByHand(const Layer &done, BlendMode mode)
{
    Layer *target = pictureBelow();
    const double cost = blendCost * pixelCount(done.area, m_pixelRatio);
    if (mode == BlendMode::Normal || !target || target->canvas || (isForPainters(mode) && m_budget->left < cost))
        return false;
    m_budget->left -= cost;
    const QPainter *painter = m_layers.back().painter;
    const QRect shown =
        painter->hasClipping() ? done.area & painter->clipBoundingRect().toAlignedRect() : done.area;
    if (shown.isEmpty())
        return true;
    const QImage &picture = *done.picture->image();
    const QRect part((shown.topLeft() - done.area.topLeft()) * m_pixelRatio, shown.size() * m_pixelRatio);
    const QPoint place = (shown.topLeft() - target->area.topLeft()) * m_pixelRatio;
    blendOver(target->picture->image(), place, shown == done.area ? picture : picture.copy(part),
              done.pictureOpacity, mode);
    return true;
}

void ItemPainter::paintLayer(Layer *done)
{
    const BlendMode mode = done->effects ? done->effects->source->blendMode : BlendMode::Normal;
    const Layer &below = m_layers.back();
    const QImage &picture = *done->picture->image();
    if (blendByHand(*done, mode))
        return;
    below.painter->setOpacity(done->pictureOpacity);
    if (mode != BlendMode::Normal)
        below.painter->setCompositionMode(compositionMode(mode));
    below.painter->drawImage(done->area.topLeft(), picture);
    if (mode != BlendMode::Normal)
        below.painter->setCompositionMode(QPainter::CompositionMode_SourceOver);
}

// The next layer down that has a picture; null when the caller's painter comes first.
Layer *ItemPainter::pictureBelow()
{
    for (auto layer = m_layers.rbegin(); layer != m_layers.rend(); ++layer)
        if (layer->picture)
            return &*layer;
    return nullptr;
}

void ItemPainter::endLayer()
{
    Layer done = std::move(m_layers.back());
    m_layers.pop_back();
    m_paintOwner = nullptr;
    if (done.clips)
        done.painter->restore();
    if (!done.picture)
        return;
    finish(&done);
    paintLayer(&done);
}

void ItemPainter::paint(const MappedItems &items)
{
    m_layers.front().painter->setRenderHints(smoothPainting);
    for (size_t i = 0; i < items.size();) {
        const MappedItem &item = items[i++];
        if (std::holds_alternative<MappedShape>(item.content))
            paintShape(item);
        else if (std::holds_alternative<MappedPicture>(item.content))
            paintPicture(item);
        else if (const size_t end = i + size_t(membersOf(item)); !beginLayer(item, end))
            i = end;
        while (m_layers.size() > 1 && m_layers.back().end == i)
            endLayer();
    }
    m_layers.front().painter->setOpacity(m_layers.front().opacity);
}

// Everywhere that the painter may change, its world transform being the identity. A recorded picture has no size of
// its own.
QRect paintableArea(const QPainter &painter)
{
    const bool recorded = painter.device() && painter.device()->devType() == QInternal::Picture;
    const QRect window = recorded ? recordedWindow : painter.window();
    return painter.hasClipping() ? window & painter.clipBoundingRect().toAlignedRect() : window;
}

} // namespace

PaintBudget paintBudget(const QPainter &painter)
{
    const QSize window = paintableArea(painter).size();
    return PaintBudget(double(window.width()) * window.height());
}

void paintItems(QPainter *painter, const MappedItems &items, PaintBudget *budget)
{
    const double ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1;
    ItemPainter(painter, paintableArea(*painter), ratio, budget, pixelTarget(*painter)).paint(items);
}

} // namespace Svg
