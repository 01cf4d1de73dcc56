#include "history/outlinebuilder.h"

#include <svgbase/qzesvgstructurenode.h>

#include "shape/constants.h"

#include <QtCore/QVector>
#include <QtGui/QPainterPathStroker>
#include <QtGui/QTransform>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

/// Added to the stroke width of a line so that it can be hit.
constexpr double lineHitMargin = 2.0;
/// Wider strokes cost time and make no visible difference.
constexpr double maxStrokeWidth = 1e5;
/// Outlines must stay within this distance of the origin, item units; one that doesn't counts as no outline.
constexpr double maxOutlineReach = 1e7;

bool isWithin(double coordinate)
{
    return qAbs(coordinate) <= maxOutlineReach; // false for NaN
}

void addItem(const QZeSvgNode *node, QPainterPath *path)
{
    switch (node->type()) {
    case QZeSvgNode::Circle:
    case QZeSvgNode::Ellipse:
        path->addEllipse(node->boundingRect());
        break;
    case QZeSvgNode::Line: {
        QPainterPath line;
        line.moveTo(node->line().p1());
        line.lineTo(node->line().p2());
        path->addPath(OutlineBuilder::stroked(line, node->strokeWidth() + lineHitMargin));
        break;
    }
    case QZeSvgNode::Path:
        path->addPath(node->path());
        break;
    case QZeSvgNode::Polygon:
        path->addPolygon(node->polygon());
        break;
    default:
        path->addRect(node->boundingRect());
        break;
    }
}

} // namespace

void OutlineBuilder::addChildren(const QZeSvgStructureNode *node, QPainterPath *path)
{
    // The nodes still to visit, the next one last: groups may nest as deep as a template likes.
    QVector<const QZeSvgNode *> pending;
    const auto visitLater = [&pending](const QZeSvgStructureNode *parent) {
        const QList<QZeSvgNode *> children = parent->children();
        std::copy(children.crbegin(), children.crend(), std::back_inserter(pending));
    };
    visitLater(node);
    while (!pending.isEmpty()) {
        const QZeSvgNode *child = pending.takeLast();
        if (!child->isVisible())
            continue;
        if (child->type() == QZeSvgNode::Group)
            visitLater(static_cast<const QZeSvgStructureNode *>(child));
        else
            addItem(child, path);
    }
}

QPainterPath OutlineBuilder::mapped(const QPainterPath &outline, const QRectF &viewBox, const QRectF &clientRect)
{
    if (viewBox == clientRect || outline.isEmpty())
        return outline;
    const bool sameWidth = sameLength(viewBox.width(), clientRect.width());
    const bool sameHeight = sameLength(viewBox.height(), clientRect.height());
    if (sameWidth && sameHeight)
        return outline.translated(clientRect.x() - viewBox.x(), clientRect.y() - viewBox.y());
    const double sx = sameWidth ? 1.0 : clientRect.width() / viewBox.width();
    const double sy = sameHeight ? 1.0 : clientRect.height() / viewBox.height();
    const QTransform scaling = QTransform::fromScale(sx, sy);
    const QRectF scaledBox = scaling.mapRect(viewBox);
    const QTransform moving =
        QTransform::fromTranslate(clientRect.x() - scaledBox.x(), clientRect.y() - scaledBox.y());
    return (scaling * moving).map(outline);
}

bool OutlineBuilder::isWithinReach(const QPainterPath &outline)
{
    for (int i = 0; i < outline.elementCount(); ++i) {
        const QPainterPath::Element element = outline.elementAt(i);
        if (!isWithin(element.x) || !isWithin(element.y))
            return false;
    }
    return true;
}

QPainterPath OutlineBuilder::stroked(const QPainterPath &path, double width)
{
    QPainterPathStroker stroker;
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::MiterJoin);
    stroker.setWidth(std::isnan(width) ? 0.0 : qBound(0.0, width, maxStrokeWidth));
    return stroker.createStroke(path);
}
