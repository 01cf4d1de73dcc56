#include "paint/itemmapping.h"

#include "inputlimits.h"
#include "paint/paintingwork.h"
#include "raster/clippedmiters.h"
#include "resolve/contextpaint.h"
#include "resolve/images.h"
#include "resolve/openends.h"
#include "scene/layereffects.h"

#include <QtCore/QtMath>
#include <QtGui/QPainterPathStroker>

#include <numeric>

namespace Svg {

namespace {

/// Relative difference below which two scales count as one.
constexpr double scaleTolerance = 1e-6;
/// Down to this size the painter's own smoothing of a picture is good enough.
constexpr double smoothFactor = 0.5;
/// How far a flattened curve may stray, painter units; what Qt's painters use.
constexpr double curveThreshold = 0.25;
/// The same as a share of the size of what is flattened.
constexpr double finestThreshold = 1e-7;

// A control point is moved to where its centre goes, but keeps its size in document units.
QTransform aboutCentre(const QPointF &centre, const QTransform &stretch)
{
    const QPointF place = stretch.map(centre);
    return QTransform::fromTranslate(place.x() - centre.x(), place.y() - centre.y());
}

QTransform itemTransform(const DisplayItem &item, const QTransform &stretch, const QTransform &world)
{
    const QTransform placed = item.control ? aboutCentre(item.controlCentre, stretch) : stretch;
    return item.facts->toDocument * placed * world;
}

bool keepsShapes(const QTransform &t)
{
    const double first = t.m11() * t.m11() + t.m12() * t.m12();
    const double second = t.m21() * t.m21() + t.m22() * t.m22();
    const double product = t.m11() * t.m21() + t.m12() * t.m22();
    const double tolerance = scaleTolerance * qMax(first, second);
    return qAbs(first - second) <= tolerance && qAbs(product) <= tolerance;
}

double meanScale(const QTransform &t)
{
    return std::sqrt(qAbs(t.m11() * t.m22() - t.m12() * t.m21()));
}

QBrush mappedBrush(const QBrush &brush, const QTransform &transform)
{
    const QGradient *gradient = brush.gradient();
    const bool relative = gradient && gradient->coordinateMode() != QGradient::LogicalMode;
    if (brush.style() <= Qt::SolidPattern || relative)
        return brush;
    QBrush mapped = brush;
    mapped.setTransform(brush.transform() * transform);
    return mapped;
}

double controlPolygonLength(const QPainterPath &path)
{
    double length = 0;
    for (int i = 1; i < path.elementCount(); ++i) {
        const QPointF step = QPointF(path.elementAt(i)) - QPointF(path.elementAt(i - 1));
        length += std::hypot(step.x(), step.y());
    }
    return length;
}

// A dash far below the size of a pixel costs time without end and shows nothing.
bool hasTooManyDashes(const QPen &pen, const QPainterPath &path)
{
    if (pen.style() == Qt::SolidLine)
        return false;
    const QVector<qreal> pattern = pen.dashPattern();
    const double period = std::accumulate(pattern.constBegin(), pattern.constEnd(), 0.0) * pen.widthF();
    return !(controlPolygonLength(path) * pattern.size() <= period * Limits::dashes);
}

QPen boundedPen(const QPen &pen, const QPainterPath &path, MappingBudget *budget)
{
    if (!hasTooManyDashes(pen, path))
        return pen;
    budget->solidStrokes = true;
    QPen solid = pen;
    solid.setStyle(Qt::SolidLine);
    return solid;
}

// Not shared with the facts: painting stores things in a path, and other threads may paint from the same facts.
QPainterPath mappedPath(const QPainterPath &path, const QTransform &transform)
{
    if (!transform.isIdentity())
        return transform.map(path);
    QPainterPath copy;
    copy.setFillRule(path.fillRule());
    copy.addPath(path);
    return copy;
}

// Never so fine that a curve falls into more pieces than a double can tell apart.
double userThreshold(const QPainterPath &path, double penWidth, double scale)
{
    const QRectF box = path.controlPointRect();
    const double finest = (box.width() + box.height() + penWidth) * finestThreshold;
    return scale > 0 ? qMax(finest, curveThreshold / scale) : curveThreshold;
}

// Whether the path is nothing but single lines, each after a move.
bool isSingleLines(const QPainterPath &path)
{
    for (int i = 0; i < path.elementCount(); ++i) {
        const auto expected = i % 2 ? QPainterPath::LineToElement : QPainterPath::MoveToElement;
        if (path.elementAt(i).type != expected)
            return false;
    }
    return true;
}

// Painters have a way of their own for single lines without round ends: these are cut where they leave the clip,
// and the rounding of the cut shows in a pixel now and then.
bool isCutAtClip(const DisplayItem &item)
{
    return item.pen.style() != Qt::NoPen && item.pen.capStyle() != Qt::RoundCap && isSingleLines(item.path);
}

bool isInRange(double coordinate)
{
    return qAbs(coordinate) <= Limits::mappedCoordinate;
}

bool isPaintable(const QRectF &box)
{
    return isInRange(box.left()) && isInRange(box.right()) && isInRange(box.top()) && isInRange(box.bottom());
}

double strokeReach(const QPen &pen)
{
    const bool hasTips = pen.joinStyle() == Qt::SvgMiterJoin || pen.joinStyle() == Qt::MiterJoin;
    const double miter = hasTips ? qMax(1.0, pen.miterLimit()) : 1;
    return pen.widthF() / 2 * qMax(miter, M_SQRT2);
}

QSizeF mappedReach(double reach, const QTransform &t)
{
    return QSizeF(reach * std::hypot(t.m11(), t.m21()), reach * std::hypot(t.m12(), t.m22()));
}

void mapStroke(DisplayItem *item, const QPen &asked, const QPainterPath &path, const QTransform &transform,
               MappingBudget *budget)
{
    item->strokedWith = asked;
    const double scale = meanScale(transform);
    // Painters have no joins that are cut like these.
    const QPainterPath tips = clippedMiters(path, asked);
    QPen pen = asked;
    if (pen.joinStyle() == Qt::MiterJoin)
        pen.setJoinStyle(Qt::SvgMiterJoin);
    if (tips.isEmpty() && keepsShapes(transform)) {
        item->pen = pen;
        item->pen.setBrush(mappedBrush(pen.brush(), transform));
        // Control points are sized for the screen by whoever edits; their line is as wide at every zoom.
        item->pen.setWidthF(item->control ? pen.widthF() : pen.widthF() * scale);
        const double reach = strokeReach(item->pen);
        item->bounds.adjust(-reach, -reach, reach, reach);
        item->strokeReach = QSizeF(reach, reach);
        return;
    }
    item->pen = QPen(Qt::NoPen);
    if (budget->isUsedUp())
        return;
    QPainterPathStroker stroker(pen);
    stroker.setCurveThreshold(userThreshold(path, pen.widthF(), scale));
    QPainterPath stroke = stroker.createStroke(path);
    stroke.addPath(tips);
    item->strokePath = transform.map(stroke);
    item->strokePath.setFillRule(Qt::WindingFill);
    budget->strokeElements -= item->strokePath.elementCount();
    item->pen.setBrush(mappedBrush(pen.brush(), transform));
    item->bounds |= item->strokePath.controlPointRect();
    item->strokeReach = mappedReach(strokeReach(pen), transform);
}

// The stroke is taken around the outline as it stands in the target, whatever brought it there (SVG 2 §13.6).
void mapUnscaledStroke(DisplayItem *item, const Outline &outline, const QTransform &transform,
                       const QTransform &world, MappingBudget *budget)
{
    const QTransform toTarget = transform * world.inverted();
    const QPainterPath path = toTarget.map(outline.path);
    QPen pen = boundedPen(outline.pen, path, budget);
    pen.setBrush(mappedBrush(outline.pen.brush(), toTarget));
    mapStroke(item, pen, path, world, budget);
}

Outline silhouette(const Outline &outline, const ComputedStyle &style)
{
    Outline result;
    result.path = outline.path;
    result.path.setFillRule(style.clipRule);
    result.fill = QBrush(Qt::black);
    return result;
}

Outline paintedOutline(const DisplayItem &item)
{
    const Outline &own = item.facts->outlines.at(item.outline);
    if (item.silhouette)
        return silhouette(own, *item.facts->style);
    Outline outline = item.override ? overridden(own, *item.facts->style, *item.override) : own;
    if (!item.paintsFill || (outline.fillPattern != noNode && !item.fillPattern))
        outline.fill = Qt::NoBrush;
    if (!item.paintsStroke || (outline.strokePattern != noNode && !item.strokePattern))
        outline.pen = QPen(Qt::NoPen);
    if (outline.pen.style() != Qt::NoPen)
        outline.path = withOpenEnds(outline.path, outline.openEnds);
    return outline;
}

// In the units of the item; a pattern of its context has others.
QBrush patternOf(const DisplayItem &item, const PatternPaint &pattern, Paint::Kind kind,
                 const QTransform &transform)
{
    const ContextPaint *paint = contextPaint(*item.facts, kind);
    if (!paint)
        return patternBrush(pattern, transform);
    const QTransform toItem = fromContext(*paint, *item.facts);
    QBrush brush = patternBrush(pattern, toItem * transform);
    brush.setTransform(brush.transform() * toItem);
    return brush;
}

// Tiles are painted for the scale that they are seen at.
void paintPatterns(const DisplayItem &item, const QTransform &transform, Outline *outline)
{
    if (item.fillPattern && outline->fill.style() != Qt::NoBrush)
        outline->fill = patternOf(item, *item.fillPattern, outline->fillKind, transform);
    if (item.strokePattern && outline->pen.style() != Qt::NoPen)
        outline->pen.setBrush(patternOf(item, *item.strokePattern, outline->strokeKind, transform));
}

/// What a path takes besides its elements, in elements.
constexpr int pathOverhead = 6;

int keptElements(const DisplayItem &item)
{
    return item.mapping ? 0 : item.path.elementCount() + pathOverhead;
}

// Long drawings would hold every outline twice.
void keepOrForget(DisplayItem *item, const QTransform &stretch, const QTransform &world, MappingBudget *budget)
{
    item->elementCount = item->path.elementCount() + item->strokePath.elementCount();
    if (keptElements(*item) <= budget->keptElements)
        return;
    if (!budget->mapping || budget->mapping->stretch != stretch || budget->mapping->world != world)
        budget->mapping = std::make_shared<const Mapping>(Mapping{stretch, world});
    item->mapping = budget->mapping;
    item->path = QPainterPath();
}

void mapShape(DisplayItem *item, const QTransform &stretch, const QTransform &world, MappingBudget *budget)
{
    Outline outline = paintedOutline(*item);
    const QTransform transform = itemTransform(*item, stretch, world);
    paintPatterns(*item, transform, &outline);
    item->path = mappedPath(outline.path, transform);
    item->mapping.reset();
    item->elementCount = 0;
    item->bounds = item->path.controlPointRect();
    item->strokePath = QPainterPath();
    item->flat.reset();
    item->fill = mappedBrush(outline.fill, transform);
    item->pen = QPen(Qt::NoPen);
    item->strokedWith = QPen(Qt::NoPen);
    item->strokeReach = QSizeF(0, 0);
    item->mapped = true;
    if (!isPaintable(item->bounds)) {
        item->path = QPainterPath();
        item->bounds = QRectF();
        return;
    }
    const bool stroked = outline.pen.style() != Qt::NoPen;
    if (stroked && item->facts->style->strokeScales)
        mapStroke(item, boundedPen(outline.pen, outline.path, budget), outline.path, transform, budget);
    else if (stroked)
        mapUnscaledStroke(item, outline, transform, world, budget);
    item->strokedPieces = strokedPieces(*item);
    item->outlineLength = paintedLength(*item);
    item->isIndivisible = !item->smooth || item->fill.style() > Qt::SolidPattern ||
                          item->pen.brush().style() > Qt::SolidPattern || isCutAtClip(*item);
    keepOrForget(item, stretch, world, budget);
}

// How much of a pixel of the painter a pixel of the picture covers, where nothing is turned; else all of it.
QSizeF shrinkage(const ShownPicture &picture)
{
    const QRectF target = picture.toPainter.mapRect(picture.target);
    if (picture.toPainter.type() > QTransform::TxScale || picture.source.isEmpty())
        return QSizeF(1, 1);
    return QSizeF(target.width() / picture.source.width(), target.height() / picture.source.height());
}

// Painters look at four pixels for each of their own; averaging all of them is done once.
void shrinkPicture(ShownPicture *picture)
{
    const QSizeF factor = shrinkage(*picture);
    if (factor.width() > smoothFactor && factor.height() > smoothFactor)
        return;
    const QSize before = picture->image.size();
    const QSize size(qMax(1, qCeil(before.width() * qMin(1.0, factor.width()))),
                     qMax(1, qCeil(before.height() * qMin(1.0, factor.height()))));
    const QTransform scale =
        QTransform::fromScale(double(size.width()) / before.width(), double(size.height()) / before.height());
    picture->image = picture->image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    picture->source = scale.mapRect(picture->source);
}

void mapImage(DisplayItem *item, const QTransform &stretch, const QTransform &world)
{
    ShownPicture *picture = item->picture.data();
    item->mapped = true;
    picture->toPainter = picture->toElement * itemTransform(*item, stretch, world);
    item->bounds = picture->toPainter.mapRect(picture->target);
    if (!isPaintable(item->bounds))
        item->bounds = QRectF();
    picture->image = item->bounds.isEmpty() ? QImage() : decodedPicture(picture->content);
    picture->source = picture->fit.inverted().mapRect(picture->target);
    if (!picture->image.isNull() && item->facts->style->smoothImages)
        shrinkPicture(picture);
}

// Regions are made of single rectangles, or of whatever shape cuts a viewport.
bool isRect(const QPainterPath &path)
{
    QPainterPath rect;
    rect.addRect(path.controlPointRect());
    return path == rect;
}

void mapEffects(DisplayItem *item, const QTransform &stretch, const QTransform &world, MappingBudget *budget)
{
    LayerEffects *effects = item->effects.get();
    const QTransform placed = item->control ? aboutCentre(item->controlCentre, stretch) : stretch;
    const QTransform regionTransform = effects->regionToDocument * placed * world;
    effects->regionPath = regionTransform.map(effects->region);
    effects->regionIsRect = regionTransform.type() <= QTransform::TxScale && isRect(effects->region);
    if (effects->filter) {
        effects->filter->toPainter = effects->filter->toDocument * placed * world;
        for (FilterStep &step : effects->filter->steps) {
            for (FilterPrimitive &primitive : step.primitives)
                mapItems(&primitive.items, stretch, world, budget);
        }
    }
    mapItems(&effects->clip, stretch, world, budget);
    mapItems(&effects->mask, stretch, world, budget);
}

QRectF coveredBounds(const QVector<DisplayItem> &items)
{
    QRectF bounds;
    for (int i = 0; i < items.size(); i = (items.at(i).kind == DisplayItem::BeginLayer ? items.at(i).end : i) + 1)
        bounds |= items.at(i).bounds;
    return bounds;
}

// What is left of a layer's content by what it goes through.
void restrictBounds(DisplayItem *layer)
{
    LayerEffects *effects = layer->effects.get();
    if (!effects)
        return;
    if (effects->filter)
        layer->bounds = filteredBounds(*effects->filter, layer->bounds);
    if (effects->hasRegion) {
        const QRectF region = effects->regionPath.controlPointRect();
        effects->holdsContent = region.contains(layer->bounds);
        layer->bounds &= region;
    }
    if (effects->clips)
        layer->bounds &= coveredBounds(effects->clip);
    if (effects->masks)
        layer->bounds &= coveredBounds(effects->mask);
}

void measureLayers(QVector<DisplayItem> *items)
{
    QVector<int> open;
    for (int i = 0; i < items->size(); ++i) {
        DisplayItem &item = (*items)[i];
        if (item.kind == DisplayItem::BeginLayer) {
            item.bounds = QRectF();
            open.append(i);
            continue;
        }
        QRectF bounds = item.bounds;
        if (item.kind == DisplayItem::EndLayer) {
            DisplayItem &begin = (*items)[open.takeLast()];
            restrictBounds(&begin);
            bounds = begin.bounds;
        }
        if (!open.isEmpty())
            (*items)[open.constLast()].bounds |= bounds;
    }
}

} // namespace

void mapItems(QVector<DisplayItem> *items, const QTransform &stretch, const QTransform &world,
              MappingBudget *budget)
{
    bool layered = false;
    for (DisplayItem &item : *items) {
        layered = layered || item.kind == DisplayItem::BeginLayer;
        if (item.kind == DisplayItem::Shape) {
            if (!item.mapped)
                mapShape(&item, stretch, world, budget);
            budget->keptElements -= keptElements(item);
        }
        if (item.kind == DisplayItem::Image && !item.mapped)
            mapImage(&item, stretch, world);
        else if (item.effects)
            mapEffects(&item, stretch, world, budget);
    }
    if (layered)
        measureLayers(items);
}

QPainterPath mappedOutline(const DisplayItem &item)
{
    if (!item.mapping)
        return item.path;
    return mappedPath(paintedOutline(item).path, itemTransform(item, item.mapping->stretch, item.mapping->world));
}

} // namespace Svg
