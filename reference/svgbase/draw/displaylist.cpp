#include "draw/displaylist.h"

#include "draw/itemmapping.h"
#include "draw/itempainter.h"
#include "draw/listbuilder.h"

#include <limits>

namespace Svg {

namespace {

bool hasSameOrigin(const DisplayItem &a, const DisplayItem &b)
{
    return a.kind == b.kind && a.node == b.node && a.outline == b.outline && a.facts == b.facts &&
           a.override == b.override && a.opacity == b.opacity && a.controlCentre == b.controlCentre &&
           a.effects == b.effects && a.end == b.end && a.paintsFill == b.paintsFill &&
           a.paintsStroke == b.paintsStroke && a.fillPattern == b.fillPattern && a.strokePattern == b.strokePattern;
}

// Takes over the mapped outlines of items that stand where they stood.
void keepMapped(QVector<DisplayItem> *fresh, QVector<DisplayItem> *old)
{
    const int common = qMin(fresh->size(), old->size());
    for (int i = 0; i < common; ++i) {
        if (hasSameOrigin(fresh->at(i), old->at(i)))
            (*fresh)[i] = std::move((*old)[i]);
    }
}

void forgetMapping(QVector<DisplayItem> *items)
{
    for (DisplayItem &item : *items)
        item.mapped = false;
}

/// What a painted item takes besides its outline: buffers that a path keeps for painting, pen and brush. Measured.
constexpr double itemOverhead = 3000;

// An outline is held twice, the second time as the painter's own copy.
double itemWeight(const DisplayItem &item)
{
    const int elements = item.path.elementCount() + item.strokePath.elementCount();
    return itemOverhead + 2.0 * double(sizeof(QPainterPath::Element)) * elements +
           double(item.picture.sizeInBytes());
}

} // namespace

int DisplayList::weight() const
{
    double weight = double(sizeof(DisplayList)) + m_picture.bytes();
    for (const DisplayItem &item : m_items)
        weight += itemWeight(item);
    for (const DisplayItem &item : m_controlPoints)
        weight += itemWeight(item);
    return int(qMin(weight, double(std::numeric_limits<int>::max())));
}

QRectF DisplayList::paintedBounds(bool withControlPoints) const
{
    QRectF bounds;
    for (const DisplayItem &item : m_items)
        bounds |= item.bounds;
    if (withControlPoints) {
        for (const DisplayItem &item : m_controlPoints)
            bounds |= item.bounds;
    }
    return bounds;
}

void DisplayList::paint(QPainter *painter, bool withControlPoints)
{
    const QRect blank = blankArea(painter, paintedBounds(withControlPoints));
    if (!blank.isEmpty() && m_picture.paint(painter, blank, withControlPoints))
        return;
    paintItems(painter, m_items);
    if (withControlPoints)
        paintItems(painter, m_controlPoints);
    if (!blank.isEmpty())
        m_picture.keep(painter, blank, withControlPoints);
}

void DisplayList::update(Document &document, const QTransform &stretch, const QTransform &world)
{
    const bool sameMapping = m_built && m_stretch == stretch && m_world == world;
    const bool sameContent = m_built && m_revision == document.revision();
    if (sameMapping && sameContent)
        return;
    m_picture.clear();
    if (!sameMapping) {
        forgetMapping(&m_items);
        forgetMapping(&m_controlPoints);
    }
    if (!sameContent) {
        BuiltList built = buildList(document);
        keepMapped(&built.items, &m_items);
        keepMapped(&built.controlPoints, &m_controlPoints);
        m_items = built.items;
        m_controlPoints = built.controlPoints;
    }
    mapItems(&m_items, stretch, world);
    mapItems(&m_controlPoints, stretch, world);
    m_stretch = stretch;
    m_world = world;
    m_revision = document.revision();
    m_built = true;
}

} // namespace Svg
