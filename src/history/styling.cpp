// One pen and one fill for the whole drawing, stored in the document as document-wide values.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include "shape/controlpoints.h"
#include "shape/controlpointsize.h"

#include <cmath>
#include <limits>

namespace {

constexpr int defaultMaxPenWidth = 8;
constexpr int opaque = 255;

/// Setting the page object's fill re-enters here through CSVGObj::setFillProp. The recursion ends when the colours
/// match; an alpha that the host rounds can take one round per step, and a host that never agrees would recurse for
/// ever.
constexpr int maxFillNesting = opaque + 1;
thread_local int fillNesting = 0;

void tellOwner(CSVGObj *owner, const QColor &color)
{
    if (!owner || fillNesting >= maxFillNesting)
        return;
    CPageBgProp prop(nullptr);
    prop.setFollowingPage(false);
    prop.setFillType(CPageBgProp::SolidFill);
    prop.setFillColor(QColor(color.rgb()));
    prop.setOpacity(int(color.alphaF() * opaque));
    prop.setFillEnable(true);
    ++fillNesting;
    owner->setFillProp(&prop, false);
    --fillNesting;
}

int roundedHalfUp(double width)
{
    const double rounded = width + 0.5;
    if (std::isnan(rounded))
        return 0;
    if (rounded >= double(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (rounded <= double(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return int(rounded);
}

} // namespace

QColor CSVGBase::getPenColor()
{
    return document ? document->getAllStrokeColor() : QColor();
}

Qt::PenStyle CSVGBase::getPenStyle()
{
    return document ? document->getAllStrokeStyle() : Qt::NoPen;
}

int CSVGBase::getPenWidth()
{
    return document ? roundedHalfUp(document->getAllStrokeWidth()) : 0;
}

QBrush CSVGBase::getFillBrush()
{
    return document ? document->getAllFillBrush() : QBrush();
}

int CSVGBase::getMaxPenWidth()
{
    return defaultMaxPenWidth;
}

void CSVGBase::setPenColor(QColor color, bool record)
{
    if (!document)
        return;
    if (record)
        RecordColor(color, ACT_SVG_PENCOLOR);
    document->setAllStrokeColor(color);
}

void CSVGBase::setPenStyle(Qt::PenStyle style, bool record)
{
    if (!document)
        return;
    if (record)
        RecordInt(style, ACT_SVG_PENSTYLE);
    document->setAllStrokeStyle(style);
}

void CSVGBase::setPenWidth(int width, bool record)
{
    if (!document)
        return;
    if (record)
        RecordInt(width, ACT_SVG_PENWIDTH);
    document->setAllStrokeWidth(double(width));
    const QZeSvgNode *first = controlPoints[0];
    // Deliberate: compares the pen width with the width of a control point, unscaled.
    if (!rawControlPoints || !first || double(width) == first->boundingRect().width()) {
        updateAllControlPoints(true, true);
        return;
    }
    const int size = controlPointPixels(width);
    resizeControlPoints(size);
    updateAfterPenWidthChanged(size);
    controlPointSize = size / usableZoom(zoomRate, size);
}

void CSVGBase::resizeControlPoints(int size)
{
    const double zoom = usableZoom(zoomRate, size);
    const double half = (size >> 1) / zoom; // halved as a whole number: an odd size leaves the centre
    const double side = size / zoom;
    forEachControlPoint(controlPoints, controlPointCount, [half, side](QZeSvgNode *node) {
        const QRectF before = node->boundingRect();
        node->setNumericAttribute(QStringLiteral("x"), before.x() + 0.5 * before.width() - half);
        node->setNumericAttribute(QStringLiteral("rx"), half);
        const QRectF after = node->boundingRect();
        node->setNumericAttribute(QStringLiteral("y"), after.y() + 0.5 * after.height() - half);
        node->setNumericAttribute(QStringLiteral("ry"), half);
        node->setNumericAttribute(QStringLiteral("width"), side);
        node->setNumericAttribute(QStringLiteral("height"), side);
    });
}

void CSVGBase::updateAfterPenWidthChanged(int)
{
    updateAllControlPoints(true, true);
}

void CSVGBase::setFillBrush(const QBrush &brush, bool record, bool)
{
    // Only colours are compared: a change of the brush style alone is dropped, as intended.
    if (!document || document->getAllFillBrush().color() == brush.color())
        return;
    if (record)
        RecordColor(brush.color(), ACT_SVG_FILLCOLOR);
    document->setAllFillBrush(brush);
    tellOwner(owner, brush.color());
}

void CSVGBase::updateBrush(const QBrush &brush)
{
    // Painting calls this also for a shape whose document could not be loaded.
    if (document)
        document->setAllFillBrush(brush);
}
