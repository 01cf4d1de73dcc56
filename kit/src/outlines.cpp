// The outlines of a shape: where it is hit, and where lines from other objects end.

#include <shapekit/styledshape.h>

#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include "figures.h"

#include <QtGui/QPainterPath>
#include <QtGui/QPainterPathStroker>

#include <algorithm>

namespace shapekit {

namespace {

/// Added to the width of a line so that it can be hit, document units.
constexpr double lineHitMargin = 6;

QPainterPath outlineOf(const QZeSvgNode &node)
{
    QPainterPath outline;
    switch (node.type()) {
    case QZeSvgNode::Path:
        return node.path();
    case QZeSvgNode::Polygon:
        outline.addPolygon(node.polygon());
        outline.closeSubpath();
        return outline;
    case QZeSvgNode::Circle:
    case QZeSvgNode::Ellipse:
        outline.addEllipse(node.boundingRect());
        return outline;
    default:
        outline.addRect(node.boundingRect());
        return outline;
    }
}

QPainterPath hitAreaOfLine(const QZeSvgNode &node)
{
    QPainterPathStroker stroker;
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    stroker.setWidth(node.strokeWidth() + lineHitMargin);
    return stroker.createStroke(outlineOf(node));
}

} // namespace

QString areaId()
{
    return QStringLiteral("area");
}

bool isFigure(const QString &id)
{
    return id == QLatin1String("figure") || id == areaId() || id.startsWith(QLatin1String("figure_"));
}

void StyledShape::updateOutlineRegion()
{
    if (m_figures.isEmpty()) {
        CSVGBase::updateOutlineRegion();
        return;
    }
    delete outlineRegion;
    outlineRegion = new QPainterPath;
    outlineRegion->setFillRule(Qt::WindingFill);
    for (const QZeSvgNode *figure : qAsConst(m_figures))
        outlineRegion->addPath(propFillEnabled || figure->nodeId() == areaId() ? outlineOf(*figure)
                                                                               : hitAreaOfLine(*figure));
}

bool StyledShape::isHitInside()
{
    const auto isArea = [](const QZeSvgNode *figure) { return figure->nodeId() == areaId(); };
    if (m_figures.isEmpty() || std::any_of(m_figures.cbegin(), m_figures.cend(), isArea))
        return true;
    const QBrush fill = getFillBrush();
    const bool isClear = fill.style() == Qt::SolidPattern && fill.color().alpha() == 0;
    return propFillEnabled && fill.style() != Qt::NoBrush && !isClear;
}

/// Of a shape that could be filled; others have lines only.
bool StyledShape::takeLines(QPainterPath *path)
{
    QPainterPath outline;
    if (!propFillEnabled)
        return CSVGBase::getOutlinePath(path);
    if (!getOutlineRegion(&outline))
        return false;
    *path = QPainterPath();
    addBorderPenWidthRegionImpl(path, &outline);
    return true;
}

bool StyledShape::getOutlinePath(QPainterPath *path)
{
    if (!path || isHitInside())
        return CSVGBase::getOutlinePath(path);
    if (!takeLines(path))
        return false;
    const QTransform toObject = seenMapping();
    const QVector<LabelPlace> places = labelPlaces();
    for (const LabelPlace &label : places) {
        QPainterPath box;
        box.addRect(toObject.mapRect(label.box));
        if (!label.text.isEmpty())
            *path += box;
    }
    return true;
}

/// The figures; of a shape without any, the frame.
QPainterPath StyledShape::connectionOutline()
{
    settleDrawing();
    QPainterPath outline;
    for (const QZeSvgNode *figure : qAsConst(m_figures))
        outline.addPath(outlineOf(*figure));
    if (outline.isEmpty())
        outline.addRect(drawnArea());
    return seenMapping().map(outline);
}

} // namespace shapekit
