// Lifetime of the page object: construction, the end of creation, destruction.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <framework/iframework.h>

#include "shape/emptytext.h"

#include <QtCore/QThread>

namespace {

/// The page object's number among graphics items; its host type is this less QGraphicsItem::UserType.
constexpr int shapeItemType = QGraphicsItem::UserType + 1001;

/// Default attributes of host objects that a shape does not offer.
constexpr int hostAttributesNotOffered[] = {2001, 2002, 2003, 2004, 2050, 2051};

/// Shapes are resized at their corners.
constexpr CObjAction::ACT_Def handlesNotOffered[] = {CObjAction::ACT_ResizeTop, CObjAction::ACT_ResizeLeft,
                                                     CObjAction::ACT_ResizeRight, CObjAction::ACT_ResizeBottom};

const QColor defaultPenColor(100, 100, 200, 200);

} // namespace

CSVGObj::CSVGObj(int kind, bool selectable, QGraphicsItem *parent)
    : CBaseObject(kind, selectable, parent, nullptr)
    , svgBase(nullptr)
    , baseSize(-1.0, -1.0)
{
    objName = emptyText();
    createFinished = false;
    for (int id : hostAttributesNotOffered)
        removeAttributeId(id);
    for (CObjAction::ACT_Def handle : handlesNotOffered)
        setHandlesDisable(handle, true);
    QColor penColor = defaultPenColor;
    GetFramework()->colorSetting(IFramework::DefaultPenColor, penColor, false);
    setMyPenColor(penColor, false);
    createThreadId = QThread::currentThreadId();
}

CSVGObj::~CSVGObj()
{
    delete svgBase;
    svgBase = nullptr;
}

int CSVGObj::type() const
{
    return shapeItemType;
}

void CSVGObj::doAfterObjCreated()
{
    createFinished = true;
    if (svgBase)
        svgBase->updateOutlineRegion();
    updateAfterObjRectChanged(nullptr, true);
    onCreateFinished(false);
    OnQPainterDraw(nullptr);
}

void CSVGObj::addAttributeId(int id)
{
    attributeIds.append(id);
}

void CSVGObj::removeAttributeId(int id)
{
    attributeIds.removeAll(id);
}
