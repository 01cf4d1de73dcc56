// The outline of a shape, in document units, and the page object's region made from it.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include "history/outlinebuilder.h"
#include "shape/controlpoints.h"
#include "shape/viewbox.h"

namespace {

/// The region is this much wider than the pen, so that a thin outline can be hit.
constexpr double borderHitMargin = 2.0;

} // namespace

void CSVGBase::updateOutlineRegion()
{
    if (!keepOutlineRegion)
        return;
    delete outlineRegion;
    outlineRegion = nullptr;
    outlineRegion = new QPainterPath;
    addAllItemsRegion(outlineRegion);
}

void CSVGBase::addAllItemsRegion(QPainterPath *path)
{
    if (!path)
        return;
    path->setFillRule(Qt::WindingFill);
    addAllItemsRegion(document, path);
}

void CSVGBase::addAllItemsRegion(QZeSvgStructureNode *node, QPainterPath *path)
{
    if (node && path)
        OutlineBuilder::addChildren(node, path);
}

bool CSVGBase::getOutlineRegion(QPainterPath *path)
{
    if (!outlineRegion || !owner)
        return false;
    const QRectF clientRect = owner->getClientRect();
    if (clientRect.width() <= 0 || clientRect.height() <= 0)
        return false;
    const QPainterPath region = OutlineBuilder::mapped(*outlineRegion, settledViewBox(document), clientRect);
    if (!OutlineBuilder::isWithinReach(region))
        return false;
    *path = region;
    return true;
}

bool CSVGBase::getOutlinePath(QPainterPath *path)
{
    if (!getOutlineRegion(path))
        return false;
    addBorderPenWidthRegionImpl(path, path);
    // Deliberately the hook: control points belong to the region only where a shape says so.
    addAllControlPointsRegion(path);
    return true;
}

void CSVGBase::addBorderPenWidthRegionImpl(QPainterPath *target, const QPainterPath *source)
{
    if (!target || !source)
        return;
    *target += OutlineBuilder::stroked(*source, getPenWidth() + borderHitMargin);
}

void CSVGBase::addAllControlPointsRegionImpl(QPainterPath *path)
{
    if (!path)
        return;
    forEachControlPoint(controlPoints, controlPointCount, [path](const QZeSvgNode *node) {
        const QRectF rect = node->boundingRect();
        if (path->contains(rect))
            return;
        QPainterPath added;
        added.addRect(rect);
        *path += added;
    });
}

void CSVGBase::addBorderPenWidthRegion(QPainterPath *, const QPainterPath *) {}

void CSVGBase::addAllControlPointsRegion(QPainterPath *) {}
