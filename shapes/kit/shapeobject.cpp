#include <kit/shapeobject.h>

#include <svgobj/csvgbase.h>

#include <QtCore/QThread>

namespace shapekit {

namespace {

/// The host's number for page objects that are shapes.
constexpr int shapeKind = 1001;
/// Shapes that have a drawing scale are of a sub type of their own, which the library gives to opened ones.
constexpr int scaledType = 26;
constexpr int scaledSubType = 13001;
/// Shapes of this type are hit in their whole frame.
constexpr int rectangularType = 2;

} // namespace

ShapeObject::ShapeObject(const Kind &kind)
    : CSVGObj(shapeKind, true, nullptr)
    , m_kind(kind)
{
    svgBase = m_kind.makeCore(this);
    svgBase->loadSVG(true);
    if (svgBase->getSVGType() == scaledType)
        setSubType(scaledSubType);
}

bool ShapeObject::createSVGBase(int type, bool initGlobals)
{
    if (svgBase && svgBase->getSVGType() == type)
        return true;
    delete svgBase;
    svgBase = m_kind.makeCore(this);
    if (svgBase->getSVGType() != type) {
        delete svgBase;
        svgBase = nullptr;
        return false;
    }
    return svgBase->loadSVG(initGlobals);
}

bool ShapeObject::load(QDataStream &in)
{
    const bool loaded = CSVGObj::load(in);
    // So that the host knows how far the shape reaches, its pen included.
    regenRegionShape(nullptr);
    return loaded;
}

bool ShapeObject::loadJson(QJsonObject &object)
{
    const bool loaded = CSVGObj::loadJson(object);
    regenRegionShape(nullptr);
    return loaded;
}

void ShapeObject::OnQPainterDraw(QPainter *painter)
{
    // Other threads copy a finished picture and leave the core alone.
    if (core() && createThreadId == QThread::currentThreadId())
        core()->settleDrawing();
    CSVGObj::OnQPainterDraw(painter);
}

void ShapeObject::regenRegionShape(QGraphicsItem *item)
{
    const bool isSized = clientRect.width() > 0 && clientRect.height() > 0;
    if (!core() || !isSized) {
        CSVGObj::regenRegionShape(item);
        return;
    }
    delete regionPath;
    regionPath = new QPainterPath;
    regionPath->addRect(core()->regionBox());
    m_regionIsBox = true;
    CPSRootObject::regenRegionShape(item);
}

QPainterPath ShapeObject::shape() const
{
    // The host may have it made anew here.
    const QPainterPath region = CSVGObj::shape();
    if (!m_regionIsBox)
        return region;
    m_regionIsBox = false;
    *regionPath = exactRegion();
    return CSVGObj::shape();
}

QPainterPath ShapeObject::exactRegion() const
{
    QPainterPath region;
    const bool hasOutline = core() && core()->getSVGType() != rectangularType && core()->getOutlinePath(&region);
    if (!hasOutline)
        region.addRect(clientRect);
    return region;
}

} // namespace shapekit
