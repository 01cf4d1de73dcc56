// Object coordinates and document units: mapping, limits of control points, default and minimum size.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include "shape/constants.h"
#include "shape/viewbox.h"
#include "shape/viewmapping.h"

namespace {

constexpr QSizeF sizeWithoutDocument(100, 100);
constexpr QSizeF minimumWithControlPoints(16, 16);
constexpr QSizeF minimumWithoutControlPoints(1, 1);

double limitAttribute(const QZeSvgNode *node, const QString &name, double unlimited)
{
    const QString text = node ? node->attribute(name) : QString();
    return text.isEmpty() ? unlimited : text.toDouble();
}

/// Without a page object, maps the view box to itself.
ViewMapping mappingOf(const QZeSvgTinyDocument *document, const CSVGObj *owner, bool flipHorizontal,
                      bool flipVertical)
{
    const QRectF box = viewBoxOf(document);
    return {box, owner ? owner->getClientRect().size() : box.size(), flipHorizontal, flipVertical};
}

} // namespace

QPointF CSVGBase::mapToSVG(QPointF pos)
{
    return mappingOf(document, owner, flipHorizontal, flipVertical).toDocument(pos);
}

double CSVGBase::mapXToSVG(double length)
{
    return mappingOf(document, owner, flipHorizontal, flipVertical).xToDocument(length);
}

double CSVGBase::mapYToSVG(double length)
{
    return mappingOf(document, owner, flipHorizontal, flipVertical).yToDocument(length);
}

double CSVGBase::mapXToObject(double length)
{
    return mappingOf(document, owner, flipHorizontal, flipVertical).xToObject(length);
}

double CSVGBase::mapYToObject(double length)
{
    return mappingOf(document, owner, flipHorizontal, flipVertical).yToObject(length);
}

double CSVGBase::getXMin(QZeSvgNode *node)
{
    return limitAttribute(node, QStringLiteral("x_from"), -unlimitedTravel);
}

double CSVGBase::getXMax(QZeSvgNode *node)
{
    return limitAttribute(node, QStringLiteral("x_to"), unlimitedTravel);
}

double CSVGBase::getYMin(QZeSvgNode *node)
{
    return limitAttribute(node, QStringLiteral("y_from"), -unlimitedTravel);
}

double CSVGBase::getYMax(QZeSvgNode *node)
{
    return limitAttribute(node, QStringLiteral("y_to"), unlimitedTravel);
}

QSizeF CSVGBase::getDefaultSVGSize()
{
    return document ? document->viewBox().size() : sizeWithoutDocument;
}

QSizeF CSVGBase::getMinimizeSize()
{
    return controlPoints[0] ? minimumWithControlPoints : minimumWithoutControlPoints;
}
