#include "paint/itempainter.h"

#include "inputlimits.h"
#include "paint/compositionmodes.h"
#include "paint/filtercanvas.h"
#include "paint/filterrunner.h"
#include "paint/itemmapping.h"
#include "paint/paintingwork.h"
#include "paint/solidpainting.h"
#include "raster/layerpictures.h"
#include "scene/layereffects.h"

#include <QtCore/QtMath>
#include <QtGui/QPainter>

#include <memory>
#include <optional>
#include <vector>

namespace Svg {

namespace {

constexpr QPainter::RenderHints smooth =
    QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform;
/// How far smoothing reaches beyond an outline, pixels.
constexpr int smoothingReach = 1;
/// Filters may ask for pixels from anywhere; farther than this no picture reaches.
constexpr double farthestPixel = 1 << 24;
/// What blending by hand costs, in pixels painted aside.
constexpr double blendCost = 20;
/// How far from a pixel's edge a rectangle may end and still be taken to end there.
constexpr double alignmentTolerance = 1e-3;
/// What is painted aside while a picture is recorded lies within this.
constexpr QRect recordedWindow(-8192, -8192, 16384, 16384);

double pixelCount(const QRect &area, double pixelRatio)
{
    return double(area.width()) * area.height() * pixelRatio * pixelRatio;
}

/// A picture that is painted aside, in the coordinates of the painter below, or of a canvas.
class SidePicture
{
public:
    SidePicture(const QRect &area, double pixelRatio, PaintBudget *budget, const QTransform &toCanvas)
        : m_area(area)
        , m_budget(budget)
        , m_pixels(pixelCount(area, pixelRatio))
        , m_isStraight(toCanvas.isIdentity())
        , m_image(area.size() * pixelRatio, QImage::Format_ARGB32_Premultiplied)
    {
        m_budget->left -= m_pixels + Limits::layerOverhead;
        m_budget->open += m_pixels;
        ++m_budget->depth;
        m_image.setDevicePixelRatio(pixelRatio);
        m_image.fill(Qt::transparent);
        m_painter.begin(&m_image);
        m_painter.setRenderHints(smooth);
        m_painter.setTransform(toCanvas * QTransform::fromTranslate(-area.x(), -area.y()));
    }
    ~SidePicture()
    {
        m_budget->open -= m_pixels;
        --m_budget->depth;
    }
    SidePicture(const SidePicture &) = delete;
    SidePicture &operator=(const SidePicture &) = delete;

    static std::unique_ptr<SidePicture> make(const QRect &area, double pixelRatio, PaintBudget *budget,
                                             const QTransform &toCanvas = QTransform())
    {
        const double pixels = pixelCount(area, pixelRatio);
        const bool affordable = pixels >= 1 && pixels <= budget->left &&
                                budget->open + pixels <= budget->mostOpen && budget->depth < Limits::layerDepth;
        budget->lacksPixels = budget->lacksPixels || !affordable;
        return affordable ? std::make_unique<SidePicture>(area, pixelRatio, budget, toCanvas) : nullptr;
    }

    const QRect &area() const { return m_area; }
    QPainter *painter() { return &m_painter; }
    /// The picture, once nothing more is painted.
    QImage *finished()
    {
        if (m_painter.isActive())
            m_painter.end();
        return &m_image;
    }
    QImage *image() { return &m_image; }
    /// Its pixels, to be written to besides painting, where they are those of the painter below.
    PixelTarget pixels()
    {
        const bool alike = m_image.devicePixelRatio() == 1 && m_isStraight;
        return alike ? PixelTarget{&m_image, m_area.topLeft(), m_area} : PixelTarget();
    }

private:
    QRect m_area;
    PaintBudget *m_budget;
    double m_pixels;
    bool m_isStraight;
    QImage m_image;
    QPainter m_painter;
};

/// A group that is painted aside, or the painter itself at the bottom of the stack.
struct Layer
{
    QPainter *painter = nullptr;
    /// Opacity that everything painted here carries.
    double opacity = 1;
    /// Opacity of the finished picture.
    double pictureOpacity = 1;
    /// What can be painted on.
    QRect area;
    PixelTarget pixels;
    std::shared_ptr<LayerEffects> effects;
    /// Null for a group that is painted straight on what lies below.
    std::unique_ptr<SidePicture> picture;
    /// What the picture is painted on until it is filtered, where that is not the pixels of the painter below.
    std::optional<FilterCanvas> canvas;
    /// Whether the painter below was given a clip for this group.
    bool clips = false;
};

class ItemPainter
{
public:
    ItemPainter(QPainter *painter, const QRect &area, double pixelRatio, PaintBudget *budget,
                const PixelTarget &pixels);
    void paint(const QVector<DisplayItem> &items);

private:
    void takePaint(QPainter *painter, const DisplayItem &item);
    void drawOutline(QPainter *painter, const DisplayItem &item);
    void paintShape(const DisplayItem &item);
    void paintImage(const DisplayItem &item);
    bool beginLayer(const DisplayItem &begin);
    bool beginStraight(const DisplayItem &begin, Layer *layer);
    void endLayer();
    Layer *pictureBelow();
    bool beginPicture(const DisplayItem &begin, Layer *layer);
    bool filtered(const Filter &filter, const Layer &layer, QImage *picture);
    void leaveCanvas(Layer *layer);
    void finish(Layer *layer);
    bool blendByHand(const Layer &done, BlendMode mode);
    void paintPicture(Layer *done);
    std::unique_ptr<SidePicture> painted(const QVector<DisplayItem> &items, const QRect &area);
    std::unique_ptr<SidePicture> painted(const QVector<DisplayItem> &items, const Layer &layer);

    std::vector<Layer> m_layers;
    /// The painter that has pen and brush of an item, and that item.
    const QPainter *m_paintOwner = nullptr;
    const DisplayItem *m_paintSource = nullptr;
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

// Neighbours are often painted alike, and a change costs the painter more than the comparison.
void ItemPainter::takePaint(QPainter *painter, const DisplayItem &item)
{
    const DisplayItem *last = m_paintOwner == painter ? m_paintSource : nullptr;
    if (!last || last->pen != item.pen)
        painter->setPen(item.pen);
    if (!last || last->fill != item.fill)
        painter->setBrush(item.fill);
    m_paintOwner = painter;
    m_paintSource = &item;
}

bool reaches(const QRectF &bounds, const QRect &area)
{
    return !paintedPixels(bounds, area).isEmpty();
}

// One that shares no data with the path; a mere copy does until it changes.
QPainterPath detachedCopy(const QPainterPath &path)
{
    QPainterPath copy = path;
    copy.setFillRule(path.fillRule() == Qt::WindingFill ? Qt::OddEvenFill : Qt::WindingFill);
    copy.setFillRule(path.fillRule());
    return copy;
}

// A path that is drawn keeps what painters made of it, 3 KB at least. That is dear where there are many, so these
// are drawn from copies.
void ItemPainter::drawOutline(QPainter *painter, const DisplayItem &item)
{
    if (item.mapping)
        painter->drawPath(mappedOutline(item));
    else
        painter->drawPath(++m_budget->outlines <= Limits::keptOutlines ? item.path : detachedCopy(item.path));
}

void ItemPainter::paintShape(const DisplayItem &item)
{
    const Layer &layer = m_layers.back();
    const PaintingWork work = paintingWork(item, layer.area, m_pixelRatio);
    m_budget->outlineWork -= work.elements;
    m_budget->work -= work.elements + work.pixels;
    if (m_budget->lacksWork() || !reaches(item.bounds, layer.area))
        return;
    const bool keep = m_budget->outlines < Limits::keptOutlines;
    if (paintSolid(item, layer.opacity * item.opacity, layer.pixels, keep)) {
        ++m_budget->outlines;
        return;
    }
    m_budget->work -= work.crowding;
    if (m_budget->lacksWork())
        return;
    QPainter *painter = layer.painter;
    painter->setOpacity(layer.opacity * item.opacity);
    takePaint(painter, item);
    if (!item.smooth)
        painter->setRenderHint(QPainter::Antialiasing, false);
    drawOutline(painter, item);
    if (!item.strokePath.isEmpty())
        painter->fillPath(item.strokePath, item.pen.brush());
    if (!item.smooth)
        painter->setRenderHint(QPainter::Antialiasing);
}

void ItemPainter::paintImage(const DisplayItem &item)
{
    const ShownPicture &picture = *item.picture;
    const Layer &layer = m_layers.back();
    if (picture.image.isNull() || !reaches(item.bounds, layer.area))
        return;
    m_budget->work -= imageWork(item, layer.area, m_pixelRatio);
    if (m_budget->lacksWork())
        return;
    QPainter *painter = layer.painter;
    const QTransform before = painter->worldTransform();
    painter->setOpacity(layer.opacity * item.opacity);
    painter->setRenderHint(QPainter::SmoothPixmapTransform, item.facts->style->smoothImages);
    painter->setWorldTransform(picture.toPainter, true);
    painter->drawImage(picture.target, picture.image, picture.source);
    painter->setWorldTransform(before);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
}

// What a filter moves or blurs may come from outside of what is painted on.
QRectF inputArea(const DisplayItem &begin, const QRect &area)
{
    if (!begin.effects || !begin.effects->filter)
        return area;
    const Filter &filter = *begin.effects->filter;
    const QSizeF reach = filterReach(filter);
    const QSizeF size = filter.toPainter.mapRect(QRectF(QPointF(), reach)).size();
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

// A group that is only cut needs no picture where nothing leaves its rectangle, or where that ends at whole pixels.
bool ItemPainter::beginStraight(const DisplayItem &begin, Layer *layer)
{
    const LayerEffects *effects = begin.effects.get();
    const bool onlyCut = effects && effects->hasRegion && !effects->filter && !effects->clips && !effects->masks &&
                         effects->blendMode == BlendMode::Normal && !effects->isolated && begin.opacity >= 1;
    if (!onlyCut || !effects->regionIsRect)
        return false;
    const QRectF rect = effects->regionPath.controlPointRect();
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

// False when nothing of the layer shows, so that all of it is passed over.
bool ItemPainter::beginLayer(const DisplayItem &begin)
{
    const Layer &below = m_layers.back();
    const QRectF reach = begin.bounds.adjusted(-smoothingReach, -smoothingReach, smoothingReach, smoothingReach);
    Layer layer;
    layer.area = (reach & inputArea(begin, below.area)).toAlignedRect();
    if (layer.area.isEmpty())
        return false;
    if (beginStraight(begin, &layer)) {
        m_layers.push_back(std::move(layer));
        return true;
    }
    if (beginPicture(begin, &layer)) {
        layer.painter = layer.picture->painter();
        layer.pixels = layer.picture->pixels();
        layer.pictureOpacity = below.opacity * begin.opacity;
        layer.effects = begin.effects;
    } else if (begin.effects) {
        return false;
    } else {
        // Without a picture of its own the group's shapes carry its opacity one by one.
        layer.painter = below.painter;
        layer.pixels = below.pixels;
        layer.opacity = below.opacity * begin.opacity;
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

bool ItemPainter::beginPicture(const DisplayItem &begin, Layer *layer)
{
    if (begin.effects && begin.effects->filter)
        layer->canvas = filterCanvas(*begin.effects->filter);
    if (layer->canvas)
        layer->picture = SidePicture::make(canvasArea(*layer->canvas, layer->area), m_pixelRatio, m_budget,
                                           layer->canvas->fromPainter);
    else
        layer->picture = SidePicture::make(layer->area, m_pixelRatio, m_budget);
    return layer->picture != nullptr;
}

std::unique_ptr<SidePicture> ItemPainter::painted(const QVector<DisplayItem> &items, const QRect &area)
{
    std::unique_ptr<SidePicture> picture = SidePicture::make(area, m_pixelRatio, m_budget);
    if (picture)
        ItemPainter(picture->painter(), area, m_pixelRatio, m_budget, picture->pixels()).paint(items);
    return picture;
}

// In the pixels of the layer's own picture.
std::unique_ptr<SidePicture> ItemPainter::painted(const QVector<DisplayItem> &items, const Layer &layer)
{
    if (!layer.canvas)
        return painted(items, layer.area);
    std::unique_ptr<SidePicture> picture =
        SidePicture::make(layer.picture->area(), m_pixelRatio, m_budget, layer.canvas->fromPainter);
    if (picture)
        ItemPainter(picture->painter(), layer.area, m_pixelRatio, m_budget, picture->pixels()).paint(items);
    return picture;
}

DisplayItem filledOutline(const QPainterPath &path)
{
    DisplayItem item;
    item.path = path;
    item.fill = Qt::black;
    item.pen = QPen(Qt::NoPen);
    item.bounds = path.controlPointRect();
    item.elementCount = path.elementCount();
    item.outlineLength = paintedLength(item);
    return item;
}

// What can't be afforded hides the picture altogether.
void keepWhere(QImage *picture, const std::unique_ptr<SidePicture> &coverage)
{
    if (coverage)
        keepCovered(picture, *coverage->finished());
    else
        picture->fill(Qt::transparent);
}

bool ItemPainter::filtered(const Filter &filter, const Layer &layer, QImage *picture)
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
    services.paint = [this, &layer](const QVector<DisplayItem> &items) {
        const std::unique_ptr<SidePicture> side = painted(items, layer);
        QImage image = side ? *side->finished() : QImage();
        image.setDevicePixelRatio(1);
        return image;
    };
    const QPoint corner = layer.picture->area().topLeft();
    const QTransform toCanvas = layer.canvas ? layer.canvas->fromPainter : QTransform();
    const QTransform toPixels = filter.toPainter * toCanvas * QTransform::fromTranslate(-corner.x(), -corner.y()) *
                                QTransform::fromScale(m_pixelRatio, m_pixelRatio);
    return runFilter(filter, toPixels, services, picture);
}

// The picture goes on in the pixels of the painter below.
void ItemPainter::leaveCanvas(Layer *layer)
{
    if (!layer->canvas)
        return;
    std::unique_ptr<SidePicture> picture = SidePicture::make(layer->area, m_pixelRatio, m_budget);
    if (!picture) {
        // Too dear: nothing is left to show.
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
    const LayerEffects *effects = layer->effects.get();
    if (!effects)
        return;
    if (effects->filter && !filtered(*effects->filter, *layer, layer->picture->image()))
        layer->picture->image()->fill(Qt::transparent);
    leaveCanvas(layer);
    QImage *picture = layer->picture->image();
    if (effects->hasRegion)
        keepWhere(picture, painted({filledOutline(effects->regionPath)}, layer->area));
    if (effects->clips)
        keepWhere(picture, painted(effects->clip, layer->area));
    if (effects->masks) {
        const std::unique_ptr<SidePicture> mask = painted(effects->mask, layer->area);
        if (mask && !effects->alphaMask)
            turnLuminanceIntoAlpha(mask->finished(), effects->linearMask);
        keepWhere(picture, mask);
    }
}

// Blended by hand where that can be afforded: painters leave a trace where nothing lies on nothing, and follow the
// rules of four modes not at all.
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

void ItemPainter::paintPicture(Layer *done)
{
    const BlendMode mode = done->effects ? done->effects->blendMode : BlendMode::Normal;
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
    for (auto layer = m_layers.rbegin(); layer != m_layers.rend(); ++layer) {
        if (layer->picture)
            return &*layer;
    }
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
    paintPicture(&done);
}

void ItemPainter::paint(const QVector<DisplayItem> &items)
{
    m_layers.front().painter->setRenderHints(smooth);
    for (int i = 0; i < items.size(); ++i) {
        const DisplayItem &item = items.at(i);
        switch (item.kind) {
        case DisplayItem::Shape:
            paintShape(item);
            break;
        case DisplayItem::Image:
            paintImage(item);
            break;
        case DisplayItem::BeginLayer:
            if (!beginLayer(item))
                i = item.end;
            break;
        case DisplayItem::EndLayer:
            endLayer();
            break;
        }
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

void paintItems(QPainter *painter, const QVector<DisplayItem> &items, PaintBudget *budget)
{
    const double ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1;
    ItemPainter(painter, paintableArea(*painter), ratio, budget, pixelTarget(*painter)).paint(items);
}

} // namespace Svg
