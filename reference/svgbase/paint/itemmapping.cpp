#include "paint/itemmapping.h"

#include "grammar/inputlimits.h"
#include "paint/filterreach.h"
#include "paint/paintingwork.h"
#include "raster/clippedmiters.h"
#include "resolve/contextpaint.h"
#include "scene/layereffects.h"
#include "scene/pattern.h"

#include <QtCore/QtMath>
#include <QtGui/QPainterPathStroker>

#include <numeric>

namespace Svg {

namespace {

/// Relative difference below which two scales are equal.
constexpr double scaleTolerance = 1e-6;
/// Down to this size the painter's own smoothing of a picture is good enough.
constexpr double smoothFactor = 0.5;
/// Tolerance of a flattened curve, painter units; as in Qt's painters.
constexpr double curveThreshold = 0.25;
/// The same as a share of the size of the curve.
constexpr double finestThreshold = 1e-7;

// A control point moves with its centre, but keeps its size in document units.
QTransform aboutCentre(const QPointF &centre, const QTransform &stretch)
{
    const QPointF place = stretch.map(centre);
    return QTransform::fromTranslate(place.x() - centre.x(), place.y() - centre.y());
}

// `toDocument` and the mapping, with the item's placement.
QTransform toPainter(const QTransform &toDocument, const DisplayItem &item, const Mapping &mapping)
{
    const QTransform placed =
        item.controlCentre ? aboutCentre(*item.controlCentre, mapping.stretch) : mapping.stretch;
    return toDocument * placed * mapping.world;
}

QTransform itemTransform(const DisplayItem &item, const Mapping &mapping)
{
    return toPainter(item.facts->toDocument, item, mapping);
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

// A dash far below the size of a pixel takes endless time and is not visible.
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

// Not shared with the facts: painting stores data in a path, and other threads may paint from the same facts.
QPainterPath mappedPath(const QPainterPath &path, const QTransform &transform)
{
    if (!transform.isIdentity())
        return transform.map(path);
    QPainterPath copy;
    copy.setFillRule(path.fillRule());
    copy.addPath(path);
    return copy;
}

// Never so fine that a double cannot distinguish the pieces of a curve.
double userThreshold(const QPainterPath &path, double penWidth, double scale)
{
    const QRectF box = path.controlPointRect();
    const double finest = (box.width() + box.height() + penWidth) * finestThreshold;
    return scale > 0 ? qMax(finest, curveThreshold / scale) : curveThreshold;
}

// Whether the path consists of single lines, each after a move.
bool isSingleLines(const QPainterPath &path)
{
    for (int i = 0; i < path.elementCount(); ++i) {
        const auto expected = i % 2 ? QPainterPath::LineToElement : QPainterPath::MoveToElement;
        if (path.elementAt(i).type != expected)
            return false;
    }
    return true;
}

// Painters treat single lines without round ends specially: these are cut where they leave the clip, and the
// rounding of the cut occasionally shows in a pixel.
bool isCutAtClip(const MappedShape &shape)
{
    return shape.pen.style() != Qt::NoPen && shape.pen.capStyle() != Qt::RoundCap && isSingleLines(shape.path);
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

/// Overhead of a path, in elements.
constexpr int pathOverhead = 6;

int keptElements(const MappedShape &shape)
{
    return shape.mapping ? 0 : shape.path.elementCount() + pathOverhead;
}

/// Maps one shape.
class ShapeMapper
{
public:
    ShapeMapper(MappedItem *item, const Mapping &mapping, MappingBudget *budget, PatternBrushes *patterns)
        : m_item(item->item)
        , m_source(std::get<ShapeItem>(item->item.content))
        , m_bounds(item->bounds)
        , m_shape(item->content.emplace<MappedShape>())
        , m_mapping(mapping)
        , m_transform(itemTransform(item->item, mapping))
        , m_budget(budget)
        , m_patterns(patterns)
    {
    }

    void map();

private:
    QBrush patternOf(const Pattern &pattern, Paint::Kind kind) const;
    void paintPatterns(Outline *outline) const;
    void mapStroke(const QPen &asked, const QPainterPath &path, const QTransform &transform);
    void mapUnscaledStroke(const Outline &outline);
    void outlineStroke(const QPen &pen, const QPainterPath &path, const QPainterPath &tips,
                       const QTransform &transform);
    void keepOrForget();

    const DisplayItem &m_item;
    const ShapeItem &m_source;
    QRectF &m_bounds;
    MappedShape &m_shape;
    const Mapping &m_mapping;
    QTransform m_transform;
    MappingBudget *m_budget;
    PatternBrushes *m_patterns;
};

// In the units of the item; a pattern of its context has others.
QBrush ShapeMapper::patternOf(const Pattern &pattern, Paint::Kind kind) const
{
    const ContextPaint *paint = contextPaint(*m_item.facts, kind);
    if (!paint)
        return m_patterns->brush(pattern, m_transform);
    const QTransform toItem = fromContext(*paint, *m_item.facts);
    QBrush brush = m_patterns->brush(pattern, toItem * m_transform);
    brush.setTransform(brush.transform() * toItem);
    return brush;
}

// Tiles are painted for the scale at which they are seen.
void ShapeMapper::paintPatterns(Outline *outline) const
{
    if (m_source.fillPattern && outline->fill.style() != Qt::NoBrush)
        outline->fill = patternOf(*m_source.fillPattern, outline->fillKind);
    if (m_source.strokePattern && outline->pen.style() != Qt::NoPen)
        outline->pen.setBrush(patternOf(*m_source.strokePattern, outline->strokeKind));
}

void ShapeMapper::outlineStroke(const QPen &pen, const QPainterPath &path, const QPainterPath &tips,
                                const QTransform &transform)
{
    if (m_budget->isUsedUp())
        return;
    QPainterPathStroker stroker(pen);
    stroker.setCurveThreshold(userThreshold(path, pen.widthF(), meanScale(transform)));
    QPainterPath stroke = stroker.createStroke(path);
    stroke.addPath(tips);
    m_shape.strokePath = transform.map(stroke);
    m_shape.strokePath.setFillRule(Qt::WindingFill);
    m_budget->strokeElements -= m_shape.strokePath.elementCount();
    m_shape.pen.setBrush(mappedBrush(pen.brush(), transform));
    m_bounds |= m_shape.strokePath.controlPointRect();
    m_shape.strokeReach = mappedReach(strokeReach(pen), transform);
}

void ShapeMapper::mapStroke(const QPen &asked, const QPainterPath &path, const QTransform &transform)
{
    m_shape.strokedWith = asked;
    // Painters lack joins cut like these.
    const QPainterPath tips = clippedMiters(path, asked);
    QPen pen = asked;
    if (pen.joinStyle() == Qt::MiterJoin)
        pen.setJoinStyle(Qt::SvgMiterJoin);
    if (!tips.isEmpty() || !keepsShapes(transform)) {
        outlineStroke(pen, path, tips, transform);
        return;
    }
    m_shape.pen = pen;
    m_shape.pen.setBrush(mappedBrush(pen.brush(), transform));
    // Editors size control points for the screen; their line has the same width at every zoom.
    if (!m_item.controlCentre)
        m_shape.pen.setWidthF(pen.widthF() * meanScale(transform));
    const double reach = strokeReach(m_shape.pen);
    m_bounds.adjust(-reach, -reach, reach, reach);
    m_shape.strokeReach = QSizeF(reach, reach);
}

// The stroke is taken around the outline in the target, whatever transforms led there (SVG 2 §13.6).
void ShapeMapper::mapUnscaledStroke(const Outline &outline)
{
    const QTransform toTarget = m_transform * m_mapping.world.inverted();
    const QPainterPath path = toTarget.map(outline.path);
    QPen pen = boundedPen(outline.pen, path, m_budget);
    pen.setBrush(mappedBrush(outline.pen.brush(), toTarget));
    mapStroke(pen, path, m_mapping.world);
}

// Long drawings would store every outline twice.
void ShapeMapper::keepOrForget()
{
    m_shape.elementCount = m_shape.path.elementCount() + m_shape.strokePath.elementCount();
    if (keptElements(m_shape) <= m_budget->keptElements)
        return;
    m_shape.mapping = m_budget->sharedMapping(m_mapping);
    m_shape.path = QPainterPath();
}

void ShapeMapper::map()
{
    Outline outline = shownOutline(m_item, m_source);
    paintPatterns(&outline);
    m_shape.path = mappedPath(outline.path, m_transform);
    m_shape.fill = mappedBrush(outline.fill, m_transform);
    m_shape.smooth = outline.smooth;
    m_bounds = m_shape.path.controlPointRect();
    if (!isPaintable(m_bounds)) {
        m_shape.path = QPainterPath();
        m_bounds = QRectF();
        return;
    }
    const bool stroked = outline.pen.style() != Qt::NoPen;
    if (stroked && m_item.facts->style->strokeScales)
        mapStroke(boundedPen(outline.pen, outline.path, m_budget), outline.path, m_transform);
    else if (stroked)
        mapUnscaledStroke(outline);
    m_shape.strokedPieces = strokedPieces(m_shape);
    m_shape.outlineLength = paintedLength(m_shape);
    m_shape.isIndivisible = !m_shape.smooth || m_shape.fill.style() > Qt::SolidPattern ||
                            m_shape.pen.brush().style() > Qt::SolidPattern || isCutAtClip(m_shape);
    keepOrForget();
}

// Share of the painter's pixel that a pixel of the picture covers, without rotation; else 1.
QSizeF shrinkage(const MappedPicture &picture, const QRectF &bounds)
{
    if (picture.toPainter.type() > QTransform::TxScale || picture.source.isEmpty())
        return QSizeF(1, 1);
    return QSizeF(bounds.width() / picture.source.width(), bounds.height() / picture.source.height());
}

// Painters sample four pixels for each of their own; averaging all of them is done once.
void shrinkPicture(MappedPicture *picture, const QRectF &bounds)
{
    const QSizeF factor = shrinkage(*picture, bounds);
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

void mapPicture(MappedItem *item, const PictureItem &shown, const Mapping &mapping)
{
    auto &picture = item->content.emplace<MappedPicture>();
    picture.toPainter = shown.toElement * itemTransform(item->item, mapping);
    picture.target = shown.target;
    item->bounds = picture.toPainter.mapRect(shown.target);
    if (!isPaintable(item->bounds))
        item->bounds = QRectF();
    if (item->bounds.isEmpty())
        return;
    picture.image = decodedPicture(shown.content);
    picture.source = shown.fit.inverted().mapRect(shown.target);
    picture.smooth = item->item.facts->style->smoothImages;
    if (!picture.image.isNull() && picture.smooth)
        shrinkPicture(&picture, item->bounds);
}

// Regions are made of single rectangles, or of whatever shape clips a viewport.
bool isRect(const QPainterPath &path)
{
    QPainterPath rect;
    rect.addRect(path.controlPointRect());
    return path == rect;
}

/// Maps lists and the groups in them.
class ListMapper
{
public:
    ListMapper(const Mapping &mapping, MappingBudget *budget, PatternBrushes *patterns)
        : m_mapping(mapping)
        , m_budget(budget)
        , m_patterns(patterns)
    {
    }

    void map(MappedItems *items);

private:
    void mapShape(MappedItem *item);
    void mapGroup(MappedItem *item, const LayerEffects *effects);
    void mapFilter(const Filter &filter, const QTransform &toPainter, MappedFilter *mapped);

    const Mapping &m_mapping;
    MappingBudget *m_budget;
    PatternBrushes *m_patterns;
};

void ListMapper::mapShape(MappedItem *item)
{
    if (!item->mapped)
        ShapeMapper(item, m_mapping, m_budget, m_patterns).map();
    item->mapped = true;
    m_budget->keptElements -= keptElements(std::get<MappedShape>(item->content));
}

void ListMapper::mapFilter(const Filter &filter, const QTransform &toPainter, MappedFilter *mapped)
{
    mapped->toPainter = toPainter;
    for (int step = 0; step < filter.steps.size(); ++step) {
        const auto &images = filter.steps.at(step).images;
        for (auto image = images.begin(); image != images.end(); ++image) {
            MappedItems &items = mapped->images[{step, image.key()}];
            if (items.empty())
                items = unmapped(image.value());
            map(&items);
        }
    }
}

void ListMapper::mapGroup(MappedItem *item, const LayerEffects *effects)
{
    if (!item->mapped) {
        auto &group = item->content.emplace<MappedGroup>();
        group.effects = effects ? std::make_unique<MappedEffects>() : nullptr;
    }
    item->mapped = true;
    if (!effects)
        return;
    MappedEffects &mapped = *std::get<MappedGroup>(item->content).effects;
    if (!mapped.source) {
        mapped.source = effects;
        mapped.clip = unmapped(effects->clip);
        mapped.mask = unmapped(effects->mask);
    }
    const QTransform regionTransform = toPainter(effects->regionToDocument, item->item, m_mapping);
    mapped.region = regionTransform.map(effects->region);
    mapped.regionIsRect = regionTransform.type() <= QTransform::TxScale && isRect(effects->region);
    if (effects->filter)
        mapFilter(*effects->filter, toPainter(effects->filter->toDocument, item->item, m_mapping), &mapped.filter);
    map(&mapped.clip);
    map(&mapped.mask);
}

QRectF coveredBounds(const MappedItems &items)
{
    QRectF bounds;
    for (size_t i = 0; i < items.size(); i += size_t(membersOf(items[i])) + 1)
        bounds |= items[i].bounds;
    return bounds;
}

// Bounds of a group's content after its effects.
void restrictBounds(MappedItem *group)
{
    MappedEffects *mapped = std::get<MappedGroup>(group->content).effects.get();
    if (!mapped)
        return;
    const LayerEffects &effects = *mapped->source;
    if (effects.filter)
        group->bounds = filteredBounds(*effects.filter, mapped->filter.toPainter, group->bounds);
    if (effects.hasRegion) {
        const QRectF region = mapped->region.controlPointRect();
        mapped->holdsContent = region.contains(group->bounds);
        group->bounds &= region;
    }
    if (effects.clips)
        group->bounds &= coveredBounds(mapped->clip);
    if (effects.masks)
        group->bounds &= coveredBounds(mapped->mask);
}

// Groups precede their members, so complete the last ones first.
void measureGroups(MappedItems *items)
{
    for (size_t i = items->size(); i-- > 0;) {
        MappedItem &item = (*items)[i];
        if (!std::holds_alternative<MappedGroup>(item.content))
            continue;
        item.bounds = QRectF();
        const size_t end = i + 1 + size_t(membersOf(item));
        for (size_t member = i + 1; member < end; member += size_t(membersOf((*items)[member])) + 1)
            item.bounds |= (*items)[member].bounds;
        restrictBounds(&item);
    }
}

void ListMapper::map(MappedItems *items)
{
    bool grouped = false;
    for (MappedItem &item : *items) {
        if (const auto *group = std::get_if<GroupItem>(&item.item.content)) {
            grouped = true;
            mapGroup(&item, group->effects.get());
        } else if (std::holds_alternative<ShapeItem>(item.item.content)) {
            mapShape(&item);
        } else if (!item.mapped) {
            item.mapped = true;
            mapPicture(&item, *std::get<std::shared_ptr<const PictureItem>>(item.item.content), m_mapping);
        }
    }
    if (grouped)
        measureGroups(items);
}

} // namespace

void mapItems(MappedItems *items, const Mapping &mapping, MappingBudget *budget, PatternBrushes *patterns)
{
    ListMapper(mapping, budget, patterns).map(items);
}

QPainterPath mappedOutline(const MappedItem &item)
{
    const auto &shape = std::get<MappedShape>(item.content);
    if (!shape.mapping)
        return shape.path;
    const Outline outline = shownOutline(item.item, std::get<ShapeItem>(item.item.content));
    return mappedPath(outline.path, itemTransform(item.item, *shape.mapping));
}

} // namespace Svg
