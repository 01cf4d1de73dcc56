#include <support/testobject.h>

#include <recordinghost/log/calllog.h>

namespace support {

TestObject::TestObject(int kind, bool selectable, QGraphicsItem *parent)
    : CSVGObj(kind, selectable, parent)
{
}

TestShape *TestObject::makeCore(const QString &templateText, int type)
{
    delete svgBase;
    svgBase = new TestShape(this, templateText, type);
    return core();
}

void TestObject::place(QRectF rect)
{
    prepareGeometryChange();
    clientRect = rect;
    dragStart = rect.topLeft();
    dragEnd = rect.bottomRight();
    baseSize = rect.size();
}

QString TestObject::kindName() const
{
    return QStringLiteral("IDS_TEST_SHAPE");
}

bool TestObject::createSVGBase(int type, bool flag)
{
    recording::log("object", "createSVGBase", {type, flag});
    if (onCreateCore)
        onCreateCore(type, flag);
    else
        makeCore({}, type)->loadSVG(false);
    return true;
}

void TestObject::OnQPainterDraw(QPainter *painter)
{
    recording::log("object", "OnQPainterDraw", {painter != nullptr});
    if (paints)
        CSVGObj::OnQPainterDraw(painter);
}

void TestObject::setFillProp(CPageBgProp *prop, bool record)
{
    recording::log("object", "CSVGObj::setFillProp", {record});
    onSetFillProp ? onSetFillProp(prop, record) : CSVGObj::setFillProp(prop, record);
}

void TestObject::notifyObjPropertyChanged(int id, const QString &value)
{
    CSVGObj::notifyObjPropertyChanged(id, value);
    if (onNotify)
        onNotify(id);
}

} // namespace support
