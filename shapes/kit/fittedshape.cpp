#include <kit/fittedshape.h>

#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtGui/QPainterPath>

#include <algorithm>

namespace shapekit {

namespace {

/// Document units; nearer than this is the same place.
constexpr double sizeEpsilon = 1e-7;
/// The smallest side of an object, item units: below it the control points have no room.
constexpr double minimumSide = 24;
/// The pen takes at most this part of the shorter side.
constexpr double largestInsetShare = 0.25;
/// No page is larger; a side beyond it is a mistake that is not drawn.
constexpr double largestSide = 1e6;
constexpr quint32 controlPointCapacity = 32;

bool isSamePlace(QPointF a, QPointF b)
{
    return qAbs(a.x() - b.x()) < sizeEpsilon && qAbs(a.y() - b.y()) < sizeEpsilon;
}

QPainterPath outlineOf(const QZeSvgNode &node)
{
    if (node.type() == QZeSvgNode::Path)
        return node.path();
    QPainterPath outline;
    outline.addPolygon(node.polygon());
    outline.closeSubpath();
    return outline;
}

} // namespace

FittedShape::FittedShape(CSVGObj *owner)
    : HostFilledShape(owner)
{
    keepAspectRatio = false;
    resizeRewritesSVG = true;
    rawControlPoints = true;
}

bool FittedShape::loadSVG(bool initGlobals)
{
    const bool loaded = CSVGBase::loadSVG(initGlobals);
    if (loaded && figure()) {
        takeMovedControlPoints();
        placeControlPoints();
        redraw(false);
    }
    return loaded;
}

bool FittedShape::updateSVG(QZeSvgNode *node, QPointF, bool refresh)
{
    const int index = indexOf(node);
    if (index < 0)
        return false;
    const QRectF place = node->boundingRect();
    if (node == activeControlPoint)
        m_dragged[index].noteDrag(dragStartPos, place);
    const QPointF centre = m_dragged.value(index).meantCentre(place);
    takeControlPoint(index, centre);
    if (!isSamePlace(centre, place.center()))
        placeControlPoint(index);
    redraw(refresh);
    return true;
}

bool FittedShape::updateSVG(bool refresh)
{
    redraw(refresh);
    return true;
}

bool FittedShape::updateAllControlPoints(bool refresh, bool)
{
    takeMovedControlPoints();
    placeControlPoints();
    redraw(refresh);
    return true;
}

void FittedShape::setSize(QSizeF, QSizeF newSize)
{
    fitTo(newSize);
}

void FittedShape::notifyObjectCreated()
{
    // The last step of a creating drag may differ from the step before it, of which the shape heard.
    fitTo(owner->getClientRect().size());
    owner->notifyOutlineRegionChanged();
    invalidate();
}

QSizeF FittedShape::getMinimizeSize()
{
    return {minimumSide, minimumSide};
}

void FittedShape::updateOutlineRegion()
{
    if (!keepOutlineRegion || !figure())
        return;
    delete outlineRegion;
    outlineRegion = new QPainterPath(outlineOf(*figure()));
    outlineRegion->setFillRule(Qt::WindingFill);
}

bool FittedShape::getOutlinePath(QPainterPath *path)
{
    if (!CSVGBase::getOutlinePath(path))
        return false;
    // Document units are item coordinates here, since the view box is the page object's rectangle.
    addAllControlPointsRegionImpl(path);
    return true;
}

double FittedShape::getXMin(QZeSvgNode *node)
{
    const int index = indexOf(node);
    return index < 0 ? CSVGBase::getXMin(node) : controlPointRange(index).left() - node->boundingRect().width() / 2;
}

double FittedShape::getXMax(QZeSvgNode *node)
{
    const int index = indexOf(node);
    return index < 0 ? CSVGBase::getXMax(node)
                     : controlPointRange(index).right() - node->boundingRect().width() / 2;
}

double FittedShape::getYMin(QZeSvgNode *node)
{
    const int index = indexOf(node);
    return index < 0 ? CSVGBase::getYMin(node) : controlPointRange(index).top() - node->boundingRect().height() / 2;
}

double FittedShape::getYMax(QZeSvgNode *node)
{
    const int index = indexOf(node);
    return index < 0 ? CSVGBase::getYMax(node)
                     : controlPointRange(index).bottom() - node->boundingRect().height() / 2;
}

QZeSvgNode *FittedShape::figure() const
{
    return document ? document->namedNode(QStringLiteral("figure")) : nullptr;
}

QSizeF FittedShape::size() const
{
    return document->viewBox().size();
}

double FittedShape::shorterSide() const
{
    return std::min(size().width(), size().height());
}

double FittedShape::inset() const
{
    return std::min(document->getAllStrokeWidth() / 2, largestInsetShare * shorterSide());
}

int FittedShape::pointCount() const
{
    return int(std::min(controlPointCount, controlPointCapacity));
}

int FittedShape::indexOf(QZeSvgNode *node) const
{
    QZeSvgNode **const end = controlPoints + pointCount();
    QZeSvgNode **const found = std::find(controlPoints, end, node);
    return !node || found == end ? -1 : int(found - controlPoints);
}

void FittedShape::fitTo(const QSizeF &newSize)
{
    const bool drawable = newSize.width() > 0 && newSize.height() > 0 && newSize.width() < largestSide &&
                          newSize.height() < largestSide;
    if (!drawable || !figure())
        return;
    document->setViewBox(QRectF(QPointF(0, 0), newSize));
    placeControlPoints();
    redraw(false);
}

void FittedShape::takeMovedControlPoints()
{
    for (int i = 0; i < pointCount(); ++i) {
        if (!controlPoints[i])
            continue;
        const QPointF centre = controlPoints[i]->boundingRect().center();
        if (!isSamePlace(centre, controlPointCentre(i)))
            takeControlPoint(i, centre);
    }
}

void FittedShape::placeControlPoint(int index)
{
    QZeSvgNode *node = controlPoints[index];
    if (!node)
        return;
    const QRectF present = node->boundingRect();
    const QPointF centre = controlPointCentre(index);
    node->setNumericAttribute(QStringLiteral("x"), centre.x() - present.width() / 2);
    node->setNumericAttribute(QStringLiteral("y"), centre.y() - present.height() / 2);
}

void FittedShape::placeControlPoints()
{
    for (int i = 0; i < pointCount(); ++i)
        placeControlPoint(i);
}

void FittedShape::redraw(bool refresh)
{
    writeFigure();
    updateOutlineRegion();
    if (refresh)
        invalidate();
}

} // namespace shapekit
