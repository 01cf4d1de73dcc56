#include <kit/hostfilledshape.h>

#include <svgobj/csvgobj.h>

#include <framework/cpagebgprop.h>

namespace shapekit {

namespace {

bool fillsAlike(const QBrush &a, const QBrush &b)
{
    const bool aFills = a.style() != Qt::NoBrush;
    const bool bFills = b.style() != Qt::NoBrush;
    return aFills == bFills && (!aFills || a.color() == b.color());
}

} // namespace

HostFilledShape::HostFilledShape(CSVGObj *owner)
    : CSVGBase(owner)
{
    propPenEnabled = true;
    propPenStyleEnabled = true;
    propPenWidthEnabled = true;
    propFillEnabled = true;
    keepOutlineRegion = true;
    // Pixels until here; the painting step only follows later changes of the zoom.
    controlPointSize /= zoomRate;
}

QBrush HostFilledShape::getFillBrush()
{
    return owner->getHostFillBrush();
}

void HostFilledShape::setFillBrush(const QBrush &brush, bool record, bool notify)
{
    // The page object hands its new fill back to this function; by then it is the present one, which ends the
    // round.
    if (!fillsAlike(brush, getFillBrush())) {
        if (record)
            RecordColor(brush.color(), ACT_SVG_FILLCOLOR);
        fillPageObject(brush);
        return;
    }
    if (notify)
        invalidate();
}

void HostFilledShape::initGlobalPropValues()
{
    setPenColor(owner->getMyPen().color(), false);
}

void HostFilledShape::fillPageObject(const QBrush &brush)
{
    CPageBgProp fill(nullptr);
    if (brush.style() != Qt::NoBrush) {
        fill.setFillType(CPageBgProp::SolidFill);
        fill.setFillColor(brush.color());
        fill.setOpacity(brush.color().alpha());
        fill.setFillEnable(true);
    } else if (owner->getFillProp()) {
        fill = *owner->getFillProp();
        fill.setFillEnable(false);
    }
    owner->setFillProp(&fill, false);
}

} // namespace shapekit
