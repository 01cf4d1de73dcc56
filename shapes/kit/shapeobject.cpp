#include <kit/shapeobject.h>

#include <svgobj/csvgbase.h>

#include <framework/cpagebgprop.h>

namespace shapekit {

namespace {

/// The host's number for page objects that are shapes.
constexpr int shapeKind = 1001;

} // namespace

ShapeObject::ShapeObject(const QString &kindNameKey, CoreFactory makeCore, const QColor &fill)
    : CSVGObj(shapeKind, true, nullptr)
    , m_kindNameKey(kindNameKey)
    , m_makeCore(makeCore)
{
    svgBase = m_makeCore(this);
    svgBase->loadSVG(true);
    setInitialFill(fill);
}

bool ShapeObject::createSVGBase(int type, bool initGlobals)
{
    if (svgBase && svgBase->getSVGType() == type)
        return true;
    delete svgBase;
    svgBase = m_makeCore(this);
    if (svgBase->getSVGType() != type) {
        delete svgBase;
        svgBase = nullptr;
        return false;
    }
    return svgBase->loadSVG(initGlobals);
}

void ShapeObject::setInitialFill(const QColor &color)
{
    CPageBgProp fill(nullptr);
    fill.setFillType(CPageBgProp::SolidFill);
    fill.setFillColor(color);
    fill.setOpacity(color.alpha());
    fill.setFillEnable(true);
    setFillProp(&fill, false);
}

} // namespace shapekit
