// Saving and loading of the page object with its shape core, and the attributes that the two answer together.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include "properties/valuecodec.h"
#include "shape/shapetype.h"

namespace {

const QString hasShapeKey = QStringLiteral("SVG_bSVG");
const QString shapeTypeKey = QStringLiteral("SVG_SVGType");
const QString selectionStateKey = QStringLiteral("doc_state_edit");

} // namespace

bool CSVGObj::save(QDataStream &out)
{
    CBaseObject::save(out);
    out << (svgBase != nullptr);
    if (svgBase) {
        out << qint32(svgBase->getSVGType());
        svgBase->save(out);
    }
    return true;
}

bool CSVGObj::load(QDataStream &in)
{
    CBaseObject::load(in);
    const QRectF loadedRect = clientRect;
    baseSize = loadedRect.size();
    if (decodeValue<bool>(in)) {
        const qint32 type = decodeValue<qint32>(in);
        createSVGBase(type, false);
        if (svgBase) {
            svgBase->load(in);
            if (type == ScaledDrawingShape)
                setSubType(scaledDrawingSubType);
        }
    }
    // Loading the core may have changed them.
    clientRect = loadedRect;
    baseSize = loadedRect.size();
    doAfterObjCreated();
    return true;
}

bool CSVGObj::saveJson(QJsonObject &object)
{
    CBaseObject::saveJson(object);
    object[hasShapeKey] = svgBase != nullptr;
    if (!svgBase)
        return true;
    object[shapeTypeKey] = svgBase->getSVGType();
    svgBase->saveJson(object);
    return true;
}

// Deliberately unlike load(): doesn't restore the client rectangle and sets no sub type.
bool CSVGObj::loadJson(QJsonObject &object)
{
    CBaseObject::loadJson(object);
    baseSize = clientRect.size();
    if (object[hasShapeKey].toBool()) {
        createSVGBase(object[shapeTypeKey].toInt(), false);
        if (svgBase)
            svgBase->loadJson(object);
    }
    doAfterObjCreated();
    return true;
}

bool CSVGObj::SavePropertyForPlayback(QDataStream &out)
{
    const bool saved = CPSRootObject::SavePropertyForPlayback(out);
    return svgBase ? svgBase->SavePropertyForPlayback(out) : saved;
}

bool CSVGObj::LoadPropertyForPlayback(QDataStream &in)
{
    const bool loaded = CPSRootObject::LoadPropertyForPlayback(in);
    return svgBase ? svgBase->LoadPropertyForPlayback(in) : loaded;
}

bool CSVGObj::GetAttribute(int id, QDataStream &out)
{
    return (svgBase && svgBase->GetAttribute(id, out)) || CPSRootObject::GetAttribute(id, out);
}

bool CSVGObj::SetAttribute(int id, QDataStream &in, bool record)
{
    if (!svgBase || !svgBase->SetAttribute(id, in, record, true))
        return CPSRootObject::SetAttribute(id, in, record);
    if (in.device())
        in.device()->reset();
    in << qint32(0);
    return true;
}

bool CSVGObj::getAllAttributes(QMap<QString, QVariant> &map)
{
    CPSRootObject::getAllAttributes(map);
    return svgBase && svgBase->getAllAttributes(map);
}

bool CSVGObj::setAllAttributes(const QMap<QString, QVariant> &map, bool flag)
{
    if (map.contains(selectionStateKey)) {
        if (svgBase)
            svgBase->setSelected(map.value(selectionStateKey).toBool());
        return true;
    }
    const bool hostChanged = CPSRootObject::setAllAttributes(map, flag);
    const bool coreChanged = svgBase && svgBase->setAllAttributes(map, flag);
    return hostChanged || coreChanged;
}

void CSVGObj::setFillProp(CPageBgProp *prop, bool record)
{
    CPSRootObject::setFillProp(prop, record);
    if (svgBase)
        svgBase->setFillBrush(fillBrush, false, true);
}

void CSVGObj::regenRegionShape(QGraphicsItem *item)
{
    if (clientRect.width() <= 0 || clientRect.height() <= 0) {
        CBaseObject::regenRegionShape(item);
        return;
    }
    delete regionPath;
    regionPath = new QPainterPath;
    const bool hasOutline =
        svgBase && svgBase->getSVGType() != RectangularRegionShape && svgBase->getOutlinePath(regionPath);
    if (!hasOutline)
        regionPath->addRect(clientRect);
    // Deliberately the root's.
    CPSRootObject::regenRegionShape(item); // NOLINT(bugprone-parent-virtual-call) clazy:exclude=skipped-base-method
}
