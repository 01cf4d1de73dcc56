#include "paint/displaylist.h"

#include "grammar/inputlimits.h"
#include "paint/itemmapping.h"
#include "paint/itempainter.h"
#include "paint/listdifference.h"
#include "scene/listbuilder.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <limits>

namespace Svg {

namespace {

void reportStrokes(const MappingBudget &mapping, DrawReport *report)
{
    if (mapping.isUsedUp())
        report->add(
            Message::TooManyStrokeElements,
            QStringLiteral("Strokes that are distorted have too many elements together; some are left out."));
    if (mapping.solidStrokes)
        report->add(Message::TooManyDashes,
                    QStringLiteral("Strokes of more than %1 dashes are drawn solid.").arg(Limits::dashes));
}

void forgetMapping(MappedItems *items)
{
    for (MappedItem &item : *items)
        item.mapped = false;
}

/// Memory of an item besides its outline (itself, pen and brush), and of the data that its path keeps from
/// painting. Measured.
constexpr double itemOverhead = 800;
constexpr double paintedOverhead = 3200;

/// When more than this share of the kept area is damaged, all of it is painted.
constexpr double mostRepaired = 0.75;

double areaOf(const QVector<QRect> &parts)
{
    double area = 0;
    for (const QRect &part : parts)
        area += double(part.width()) * part.height();
    return area;
}

double flatWeight(const FlatShape &flat)
{
    const int points =
        flat.fill.points.capacity() + flat.stroke.points.capacity() + flat.distorted.points.capacity();
    return double(sizeof(FlatShape)) + double(sizeof(QPoint)) * points;
}

// An outline that is painted repeatedly is stored twice, the second time as the painter's own copy.
double shapeWeight(const MappedShape &shape, bool isPaintedAgain)
{
    const int elements = shape.path.elementCount() + shape.strokePath.elementCount();
    const bool keepsCopy = isPaintedAgain && !shape.mapping;
    return (keepsCopy ? paintedOverhead : 0) +
           (keepsCopy ? 2.0 : 1.0) * double(sizeof(QPainterPath::Element)) * elements +
           (shape.flat ? flatWeight(*shape.flat) : 0);
}

double itemWeight(const MappedItem &item, bool isPaintedAgain)
{
    double weight = itemOverhead;
    if (const auto *shape = std::get_if<MappedShape>(&item.content))
        weight += shapeWeight(*shape, isPaintedAgain);
    if (const auto *picture = std::get_if<MappedPicture>(&item.content))
        weight += double(picture->image.sizeInBytes());
    return weight;
}

} // namespace

int DisplayList::weight() const
{
    double weight = double(sizeof(DisplayList)) + m_picture.bytes();
    const bool isPaintedAgain = m_paintings > 1;
    for (const MappedItem &item : m_items)
        weight += itemWeight(item, isPaintedAgain);
    for (const MappedItem &item : m_controlPoints)
        weight += itemWeight(item, isPaintedAgain);
    return int(qMin(weight, double(std::numeric_limits<int>::max())));
}

QRectF DisplayList::paintedBounds(bool withControlPoints) const
{
    QRectF bounds;
    for (const MappedItem &item : m_items)
        bounds |= item.bounds;
    if (withControlPoints)
        for (const MappedItem &item : m_controlPoints)
            bounds |= item.bounds;
    return bounds;
}

double DisplayList::paintAll(QPainter *painter, bool withControlPoints)
{
    PaintBudget budget = paintBudget(*painter);
    // Most lists are painted once.
    if (m_paintings == 0)
        budget.outlines = Limits::keptOutlines;
    m_paintings = qMin(m_paintings + 1, 2);
    paintItems(painter, m_items, &budget);
    if (withControlPoints)
        paintItems(painter, m_controlPoints, &budget);
    reportPainting(budget);
    return budget.taken();
}

void DisplayList::reportPainting(const PaintBudget &budget)
{
    m_paintReport = DrawReport();
    if (budget.lacksWork() || m_tiles.budget().lacksWork())
        m_paintReport.add(Message::TooMuchPainting,
                          QStringLiteral("Painting takes too long; what comes last is left out."));
    if (budget.lacksPixels || m_tiles.budget().lacksPixels)
        m_paintReport.add(
            Message::TooManyLayerPixels,
            QStringLiteral("Opacity, clip paths, masks and filters need too many pixels; some have no "
                           "effect or nothing to show."));
    if (m_tiles.isExhausted())
        m_paintReport.add(Message::TooManyPatterns,
                          QStringLiteral("Tiles of patterns with too many pixels together are left out."));
}

QVector<Message> DisplayList::messages(const Tree &tree) const
{
    QVector<Message> result;
    m_buildReport.appendTo(&result, tree);
    m_paintReport.appendTo(&result, tree);
    DrawReport strokes;
    reportStrokes(m_mappingBudget, &strokes);
    reportStrokes(m_tiles.mapping(), &strokes);
    strokes.appendTo(&result, tree);
    return result;
}

void DisplayList::paint(QPainter *painter, bool withControlPoints)
{
    QImage *target = plainTarget(painter);
    const QRect reach = target ? paintedPixels(paintedBounds(withControlPoints), target->rect()) : QRect();
    if (reach.isEmpty()) {
        paintAll(painter, withControlPoints);
        return;
    }
    switch (m_picture.prepare(*target, reach, withControlPoints)) {
    case KeptPicture::Paint:
        paintAll(painter, withControlPoints);
        break;
    case KeptPicture::PaintAndKeep:
        if (isMostOfArea(damagedParts(withControlPoints))) {
            paintWhole(painter, withControlPoints);
            break;
        }
        m_picture.keepBelow(*target);
        paintAndKeep(painter, *target, withControlPoints);
        break;
    case KeptPicture::Repair:
        repair(painter, target, withControlPoints);
        break;
    }
    m_damage = Damage();
}

bool DisplayList::isMostOfArea(const QVector<QRect> &parts) const
{
    return areaOf(parts) > mostRepaired * areaOf({m_picture.area()});
}

// A drawing that changes completely is likely to do so again: keeping its picture would be wasted.
void DisplayList::paintWhole(QPainter *painter, bool withControlPoints)
{
    m_picture.drop();
    m_repainted = {m_picture.area()};
    paintAll(painter, withControlPoints);
}

// A picture that was cut short for lack of time or memory depends on what was painted before, so it is not kept.
void DisplayList::paintAndKeep(QPainter *painter, const QImage &target, bool withControlPoints)
{
    m_repainted = {m_picture.area()};
    m_effort = paintAll(painter, withControlPoints);
    if (m_effort < 1)
        m_picture.keep(target, m_picture.area());
    else
        m_picture.clear();
}

void DisplayList::repair(QPainter *painter, QImage *target, bool withControlPoints)
{
    if (isMostOfArea(damagedParts(withControlPoints))) {
        paintWhole(painter, withControlPoints);
        return;
    }
    m_damage.add(m_picture.changedBelow(*target));
    const QVector<QRect> parts = damagedParts(withControlPoints);
    if (isMostOfArea(parts)) {
        paintAndKeep(painter, *target, withControlPoints);
        return;
    }
    m_repainted = parts;
    m_picture.restore(target, parts);
    for (const QRect &part : parts) {
        painter->setClipRect(part, Qt::ReplaceClip);
        m_effort += paintAll(painter, withControlPoints);
    }
    painter->setClipping(false);
    // Only painting tells whether the whole still fits the budget.
    if (m_effort >= 1) {
        m_picture.restoreBelow(target);
        paintAndKeep(painter, *target, withControlPoints);
        return;
    }
    for (const QRect &part : parts)
        m_picture.keep(*target, part);
}

QVector<QRect> DisplayList::damagedParts(bool withControlPoints) const
{
    const QRect area = m_picture.area();
    QVector<QRect> pending = m_damage.pixels(area);
    QVector<QRect> parts;
    while (!pending.isEmpty()) {
        QRect grown = grownToItems(pending.takeLast(), m_items, area);
        if (withControlPoints)
            grown = grownToItems(grown, m_controlPoints, area);
        const auto touched = std::find_if(parts.begin(), parts.end(),
                                          [&grown](const QRect &part) { return part.intersects(grown); });
        if (touched == parts.end()) {
            parts.append(grown);
            continue;
        }
        pending.append(grown | *touched);
        parts.erase(touched);
    }
    return parts;
}

void DisplayList::map(MappedItems *items)
{
    mapItems(items, m_mapping, &m_mappingBudget, &m_tiles);
}

void DisplayList::replaceItems(MappedItems *items, const DisplayItems &built)
{
    MappedItems fresh = unmapped(built);
    const QVector<int> changed = takeOverMapped(&fresh, items);
    items->swap(fresh);
    map(items);
    addDifference(fresh, *items, changed, &m_damage);
}

void DisplayList::update(SettledTree &document, const QTransform &stretch, const QTransform &world)
{
    const bool sameMapping = m_built && m_mapping.stretch == stretch && m_mapping.world == world;
    const bool sameContent = m_built && m_revision == document.revision();
    if (sameMapping && sameContent)
        return;
    m_mapping = {stretch, world};
    m_mappingBudget = MappingBudget();
    m_tiles = PatternTiles();
    if (!sameMapping) {
        m_picture.clear();
        forgetMapping(&m_items);
        forgetMapping(&m_controlPoints);
    }
    if (sameContent) {
        map(&m_items);
        map(&m_controlPoints);
    } else {
        const BuiltList built = buildList(document);
        m_buildReport = built.report;
        replaceItems(&m_items, built.items);
        replaceItems(&m_controlPoints, built.controlPoints);
    }
    if (!sameMapping)
        m_damage = Damage();
    m_revision = document.revision();
    m_built = true;
}

} // namespace Svg
