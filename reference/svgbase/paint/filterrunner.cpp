#include "paint/filterrunner.h"

#include "filters/convolution.h"
#include "filters/displacement.h"
#include "filters/lighting.h"
#include "filters/pixelfilters.h"
#include "filters/turbulence.h"
#include "grammar/inputlimits.h"
#include "grammar/linearlight.h"
#include "grammar/viewboxes.h"
#include "paint/compositionmodes.h"
#include "raster/blending.h"

#include <QtCore/QtMath>
#include <QtGui/QPainter>

#include <cmath>

namespace Svg {

namespace {

/// Costs of primitives, in plain passes over their pixels.
constexpr double plainCost = 2;
/// Largest factor by which lines get longer where a blur extends beyond edges.
constexpr double extendedLines = 5;
constexpr double lineCost = 40;
constexpr double lightCost = 40;
constexpr double factorCost = 4;
constexpr double octaveCost = 24;
/// Distance from a pixel's edge within which a region counts as ending there.
constexpr double alignmentTolerance = 1e-3;
constexpr int greatestComponent = 255;
/// Pictures held besides named results: the source and its alpha, the previous result, an input, the result and its
/// part in the region.
constexpr int heldPictures = 6;

struct FilterResult
{
    QImage picture;
    bool linear = false;
    /// Units of the filtered element.
    QRectF region;
    bool standard = false;
};

class StepRunner
{
public:
    StepRunner(const Filter &filter, int step, const QTransform &toPixels, const FilterServices &services)
        : m_filter(filter)
        , m_stepIndex(step)
        , m_step(filter.steps.at(step))
        , m_toPixels(toPixels)
        , m_services(services)
    {
    }
    ~StepRunner() { m_services.holdPixels(-m_heldPixels); }
    StepRunner(const StepRunner &) = delete;
    StepRunner &operator=(const StepRunner &) = delete;

    bool run(QImage *picture);

private:
    bool apply(int index);
    bool isNeededAfter(int index, const QString &name) const;
    void keepNeeded(int index);
    double pixelCount() const { return double(m_source.picture.width()) * m_source.picture.height(); }
    bool holdResults();
    FilterResult input(const FilterPrimitive &primitive, int index) const;
    QImage inputPicture(const FilterPrimitive &primitive, int index) const;
    QRectF primitiveRegion(const FilterPrimitive &primitive) const;
    QImage result(int index) const;
    QImage shownImage(int index) const;
    QImage blank() const;
    QImage painted(const QBrush &brush) const;
    QImage blurred(const FilterPrimitive &primitive, QImage picture) const;
    QImage shifted(const FilterPrimitive &primitive, const QImage &picture) const;
    QImage flooded(const QColor &color) const;
    QImage shadowed(const FilterPrimitive &primitive) const;
    QImage composed(const FilterPrimitive &primitive) const;
    QImage blended(const FilterPrimitive &primitive) const;
    QImage merged(const FilterPrimitive &primitive) const;
    QImage morphed(const FilterPrimitive &primitive) const;
    QImage tiled(const FilterPrimitive &primitive) const;
    QImage convolved(const FilterPrimitive &primitive) const;
    QImage displaced(const FilterPrimitive &primitive) const;
    QImage lit(const FilterPrimitive &primitive) const;
    QImage turbulent(const FilterPrimitive &primitive) const;
    QVector3D pixelPlace(const QVector3D &place) const;
    QSizeF pixelSize(const QSizeF &size) const;
    QRect pixelRect(const QRectF &region) const;
    void cut(QImage *picture, const QRectF &region) const;

    const Filter &m_filter;
    int m_stepIndex;
    const FilterStep &m_step;
    QTransform m_toPixels;
    const FilterServices &m_services;
    QRectF m_region;
    FilterResult m_source;
    FilterResult m_sourceAlpha;
    FilterResult m_last;
    QHash<QString, FilterResult> m_named;
    double m_heldPixels = 0;
};

QImage inSpace(const FilterResult &result, bool linear)
{
    QImage picture = result.picture;
    if (result.linear != linear)
        linear ? encodeLinear(&picture) : decodeLinear(&picture);
    return picture;
}

QImage StepRunner::blank() const
{
    QImage picture(m_source.picture.size(), m_source.picture.format());
    picture.fill(Qt::transparent);
    return picture;
}

// The paint of the filtered element, extending infinitely (Filter Effects 1 §9.2).
QImage StepRunner::painted(const QBrush &brush) const
{
    QImage picture = blank();
    QPainter painter(&picture);
    painter.setTransform(m_toPixels);
    painter.fillRect(m_region, brush);
    painter.end();
    return picture;
}

QRect StepRunner::pixelRect(const QRectF &region) const
{
    const QRectF mapped = m_toPixels.mapRect(region);
    return mapped.adjusted(alignmentTolerance, alignmentTolerance, -alignmentTolerance, -alignmentTolerance)
        .intersected(QRectF(m_source.picture.rect()))
        .toAlignedRect();
}

// Regions end at whole pixels, unless they are turned.
void StepRunner::cut(QImage *picture, const QRectF &region) const
{
    QImage kept = blank();
    QPainter painter(&kept);
    if (m_toPixels.type() <= QTransform::TxScale) {
        const QRect rect = pixelRect(region);
        painter.drawImage(rect.topLeft(), *picture, rect);
    } else {
        QPainterPath path;
        path.addRect(region);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(m_toPixels.map(path), QBrush(*picture));
    }
    painter.end();
    *picture = kept;
}

// An unknown name means the previous result (Filter Effects 1 §9.2).
FilterResult StepRunner::input(const FilterPrimitive &primitive, int index) const
{
    const QString name = primitive.inputs.value(index);
    if (name == QLatin1String("SourceGraphic"))
        return m_source;
    if (name == QLatin1String("SourceAlpha"))
        return m_sourceAlpha;
    if (name == QLatin1String("FillPaint"))
        return {painted(m_filter.fillPaint), false, m_region, true};
    if (name == QLatin1String("StrokePaint"))
        return {painted(m_filter.strokePaint), false, m_region, true};
    if (name == QLatin1String("BackgroundImage") || name == QLatin1String("BackgroundAlpha"))
        return {blank(), false, m_region, true};
    return m_named.value(name, m_last);
}

QImage StepRunner::inputPicture(const FilterPrimitive &primitive, int index) const
{
    return inSpace(input(primitive, index), primitive.linear);
}

int inputCount(const FilterPrimitive &primitive)
{
    switch (primitive.kind) {
    case ElementKind::FeFlood:
    case ElementKind::FeImage:
    case ElementKind::FeTile:
    case ElementKind::FeTurbulence:
        return 0;
    case ElementKind::FeMerge:
        return primitive.inputs.size();
    case ElementKind::FeBlend:
    case ElementKind::FeComposite:
    case ElementKind::FeDisplacementMap:
        return 2;
    default:
        return 1;
    }
}

// The bounds of all inputs, or the whole region if one of them is a standard input (Filter Effects 1 §9.4).
QRectF StepRunner::primitiveRegion(const FilterPrimitive &primitive) const
{
    QRectF region;
    bool whole = inputCount(primitive) == 0;
    for (int i = 0; i < inputCount(primitive); ++i) {
        const FilterResult used = input(primitive, i);
        whole = whole || used.standard;
        region |= used.region;
    }
    if (whole)
        region = m_region;
    const PrimitiveRegion &own = primitive.region;
    if (own.width.value_or(1) <= 0 || own.height.value_or(1) <= 0)
        return QRectF();
    return QRectF(own.x.value_or(region.x()), own.y.value_or(region.y()), own.width.value_or(region.width()),
                  own.height.value_or(region.height()));
}

// Sizes along the axes of the element, in pixels across and down.
QSizeF StepRunner::pixelSize(const QSizeF &size) const
{
    const double alongX = size.width() * std::hypot(m_toPixels.m11(), m_toPixels.m12());
    const double alongY = size.height() * std::hypot(m_toPixels.m21(), m_toPixels.m22());
    const bool swapped = qAbs(m_toPixels.m12()) > qAbs(m_toPixels.m11());
    return swapped ? QSizeF(alongY, alongX) : QSizeF(alongX, alongY);
}

QImage StepRunner::blurred(const FilterPrimitive &primitive, QImage picture) const
{
    const QSizeF deviation = pixelSize(primitive.extent);
    blurPicture(&picture, deviation.width(), deviation.height(), primitive.edges,
                pixelRect(input(primitive, 0).region));
    return picture;
}

QImage StepRunner::shifted(const FilterPrimitive &primitive, const QImage &picture) const
{
    QPointF offset = m_toPixels.map(primitive.offset) - m_toPixels.map(QPointF());
    const QPointF rounded(std::round(offset.x()), std::round(offset.y()));
    if ((offset - rounded).manhattanLength() < alignmentTolerance)
        offset = rounded;
    QImage result = blank();
    QPainter painter(&result);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(offset, picture);
    return result;
}

QImage StepRunner::flooded(const QColor &color) const
{
    QImage picture = blank();
    picture.fill(color);
    return picture;
}

QColor inLinearLight(const QColor &color)
{
    const auto encode = [](int component) { return qRound(linearFromEncoded(component) * greatestComponent); };
    return QColor(encode(color.red()), encode(color.green()), encode(color.blue()), color.alpha());
}

QImage StepRunner::shadowed(const FilterPrimitive &primitive) const
{
    const QImage source = inputPicture(primitive, 0);
    QImage shadow = blurred(primitive, shifted(primitive, source));
    QPainter tint(&shadow);
    tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tint.fillRect(shadow.rect(), primitive.linear ? inLinearLight(primitive.color) : primitive.color);
    tint.setCompositionMode(QPainter::CompositionMode_SourceOver);
    tint.drawImage(0, 0, source);
    tint.end();
    return shadow;
}

QImage StepRunner::composed(const FilterPrimitive &primitive) const
{
    QImage below = inputPicture(primitive, 1);
    const QImage above = inputPicture(primitive, 0);
    if (primitive.compositeOperator == CompositeOperator::Arithmetic) {
        combinePictures(&below, above, primitive.coefficients);
        return below;
    }
    QPainter painter(&below);
    painter.setCompositionMode(compositionMode(primitive.compositeOperator));
    painter.drawImage(0, 0, above);
    painter.end();
    return below;
}

QImage StepRunner::blended(const FilterPrimitive &primitive) const
{
    QImage below = inputPicture(primitive, 1);
    const QImage above = inputPicture(primitive, 0);
    blendOver(&below, QPoint(), above, 1, primitive.blendMode);
    return below;
}

QImage StepRunner::merged(const FilterPrimitive &primitive) const
{
    QImage picture = blank();
    QPainter painter(&picture);
    for (int i = 0; i < primitive.inputs.size(); ++i)
        painter.drawImage(0, 0, inputPicture(primitive, i));
    painter.end();
    return picture;
}

QImage StepRunner::morphed(const FilterPrimitive &primitive) const
{
    QImage picture = inputPicture(primitive, 0);
    const QSizeF radius = pixelSize(primitive.extent);
    const int across = qRound(qMin(radius.width(), double(picture.width())));
    const int down = qRound(qMin(radius.height(), double(picture.height())));
    morphPicture(&picture, across, down, primitive.dilates);
    return picture;
}

QImage StepRunner::tiled(const FilterPrimitive &primitive) const
{
    const FilterResult tile = input(primitive, 0);
    const QRect rect = pixelRect(tile.region);
    QImage picture = blank();
    if (rect.isEmpty())
        return picture;
    QBrush brush(inSpace(tile, primitive.linear).copy(rect));
    brush.setTransform(QTransform::fromTranslate(rect.x(), rect.y()));
    // Tiles repeat at the size of the region, which may end between pixels.
    const QRectF exact = m_toPixels.mapRect(tile.region);
    if (m_toPixels.type() <= QTransform::TxScale && QRectF(m_source.picture.rect()).contains(exact))
        brush.setTransform(boxMapping(QRectF(QPointF(), rect.size()), exact));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(picture.rect(), brush);
    painter.end();
    return picture;
}

QImage StepRunner::convolved(const FilterPrimitive &primitive) const
{
    QImage picture = inputPicture(primitive, 0);
    convolvePicture(&picture, *primitive.convolution, pixelRect(m_region));
    return picture;
}

QImage StepRunner::displaced(const FilterPrimitive &primitive) const
{
    QImage picture = inputPicture(primitive, 0);
    Displacement displacement = *primitive.displacement;
    const QSizeF scale = displacement.scale;
    displacement.scale = pixelSize(QSizeF(qAbs(scale.width()), qAbs(scale.height())));
    if (scale.width() < 0)
        displacement.scale *= -1;
    displacePicture(&picture, inputPicture(primitive, 1), displacement);
    return picture;
}

// Heights scale with the picture.
QVector3D StepRunner::pixelPlace(const QVector3D &place) const
{
    const QPointF mapped = m_toPixels.map(place.toPointF());
    const double growth =
        std::hypot(std::hypot(m_toPixels.m11(), m_toPixels.m12()), std::hypot(m_toPixels.m21(), m_toPixels.m22())) /
        M_SQRT2;
    return QVector3D(float(mapped.x()), float(mapped.y()), float(double(place.z()) * growth));
}

QImage StepRunner::lit(const FilterPrimitive &primitive) const
{
    Lighting lighting = *primitive.lighting;
    lighting.light.place = pixelPlace(lighting.light.place);
    lighting.light.pointsAt = pixelPlace(lighting.light.pointsAt);
    if (primitive.linear)
        lighting.color = inLinearLight(lighting.color);
    QImage picture = inputPicture(primitive, 0);
    lightPicture(&picture, lighting, pixelRect(m_region));
    return picture;
}

QImage StepRunner::turbulent(const FilterPrimitive &primitive) const
{
    Turbulence turbulence = *primitive.turbulence;
    turbulence.tile = primitiveRegion(primitive) & m_region;
    QImage picture = blank();
    fillWithTurbulence(&picture, turbulence, m_toPixels.inverted());
    return picture;
}

QImage StepRunner::shownImage(int index) const
{
    const QImage picture = m_step.images.contains(index) ? m_services.paint(m_stepIndex, index) : QImage();
    return picture.isNull() ? blank() : picture;
}

QImage StepRunner::result(int index) const
{
    const FilterPrimitive &primitive = m_step.primitives.at(index);
    QImage picture;
    switch (primitive.kind) {
    case ElementKind::FeGaussianBlur:
        return blurred(primitive, inputPicture(primitive, 0));
    case ElementKind::FeOffset:
        return shifted(primitive, inputPicture(primitive, 0));
    case ElementKind::FeFlood:
        return flooded(primitive.color);
    case ElementKind::FeDropShadow:
        return shadowed(primitive);
    case ElementKind::FeComposite:
        return composed(primitive);
    case ElementKind::FeBlend:
        return blended(primitive);
    case ElementKind::FeMerge:
        return merged(primitive);
    case ElementKind::FeMorphology:
        return morphed(primitive);
    case ElementKind::FeTile:
        return tiled(primitive);
    case ElementKind::FeConvolveMatrix:
        return convolved(primitive);
    case ElementKind::FeDisplacementMap:
        return displaced(primitive);
    case ElementKind::FeDiffuseLighting:
    case ElementKind::FeSpecularLighting:
        return lit(primitive);
    case ElementKind::FeTurbulence:
        return turbulent(primitive);
    case ElementKind::FeColorMatrix:
        picture = inputPicture(primitive, 0);
        applyMatrix(&picture, primitive.matrix);
        return picture;
    case ElementKind::FeComponentTransfer:
        picture = inputPicture(primitive, 0);
        applyTables(&picture, primitive.tables);
        return picture;
    case ElementKind::FeImage:
        return shownImage(index);
    default:
        return blank();
    }
}

// These make colours of their own, which are encoded.
bool isEncoded(ElementKind kind)
{
    return kind == ElementKind::FeFlood || kind == ElementKind::FeImage;
}

double costOfPixel(const FilterPrimitive &primitive)
{
    if (primitive.edges != EdgeMode::None)
        return lineCost * extendedLines;
    if (primitive.convolution)
        return plainCost + factorCost * primitive.convolution->factors.size();
    if (primitive.turbulence)
        return plainCost + octaveCost * primitive.turbulence->octaves;
    if (primitive.lighting)
        return lightCost;
    const bool byLines = primitive.extent.width() > 0 || primitive.extent.height() > 0;
    return byLines ? lineCost : plainCost + primitive.inputs.size();
}

bool StepRunner::apply(int index)
{
    const FilterPrimitive &primitive = m_step.primitives.at(index);
    if (!m_services.takePixels(pixelCount() * costOfPixel(primitive)) || !holdResults())
        return false;
    FilterResult made;
    made.region = primitiveRegion(primitive) & m_region;
    made.linear = primitive.linear && !isEncoded(primitive.kind);
    made.picture = made.region.isEmpty() ? blank() : result(index);
    cut(&made.picture, made.region);
    m_last = made;
    if (!primitive.result.isEmpty())
        m_named.insert(primitive.result, made);
    return true;
}

// Until another primitive takes the name.
bool StepRunner::isNeededAfter(int index, const QString &name) const
{
    for (int i = index + 1; i < m_step.primitives.size(); ++i) {
        if (m_step.primitives.at(i).inputs.contains(name))
            return true;
        if (m_step.primitives.at(i).result == name)
            return false;
    }
    return false;
}

// False when more results are waiting than the limit allows.
bool StepRunner::holdResults()
{
    const double pixels = pixelCount() * (m_named.size() + heldPictures);
    const bool fits = m_services.holdPixels(pixels - m_heldPixels);
    m_heldPixels = pixels;
    return fits;
}

void StepRunner::keepNeeded(int index)
{
    for (auto it = m_named.begin(); it != m_named.end();)
        it = isNeededAfter(index, it.key()) ? std::next(it) : m_named.erase(it);
}

bool StepRunner::run(QImage *picture)
{
    m_source.picture = *picture;
    m_region = m_step.region.value_or(m_toPixels.inverted().mapRect(QRectF(picture->rect())));
    m_source.region = m_region;
    m_source.standard = true;
    cut(&m_source.picture, m_region);
    m_sourceAlpha = m_source;
    keepAlpha(&m_sourceAlpha.picture);
    m_last = m_source;
    for (int i = 0; i < m_step.primitives.size(); ++i) {
        if (!apply(i))
            return false;
        keepNeeded(i);
    }
    *picture = inSpace(m_last, false);
    return true;
}

} // namespace

bool runFilter(const Filter &filter, const QTransform &toPixels, const FilterServices &services, QImage *picture)
{
    const double ratio = picture->devicePixelRatio();
    picture->setDevicePixelRatio(1);
    bool complete = true;
    for (int step = 0; step < filter.steps.size(); ++step)
        complete = complete && StepRunner(filter, step, toPixels, services).run(picture);
    picture->setDevicePixelRatio(ratio);
    return complete;
}

} // namespace Svg
