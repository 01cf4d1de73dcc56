#include <support/testshape.h>

#include <recordinghost/log/calllog.h>
#include <svgbase/qzesvgtinydocument.h>

namespace support {

namespace {

void log(const char *operation, const QVariantList &arguments = {})
{
    recording::log(QStringLiteral("shape"), operation, arguments);
}

QString idOf(const QZeSvgNode *node)
{
    return node ? node->nodeId() : QString();
}

} // namespace

TestShape::TestShape(CSVGObj *owner, const QString &templateText, int type)
    : CSVGBase(owner)
    , templateText(templateText)
    , type(type)
{
}

QRectF TestShape::pointRect(int number) const
{
    return controlPoints[number - 1]->boundingRect();
}

QZeSvgNode *TestShape::node(const QString &id) const
{
    return document->namedNode(id);
}

bool TestShape::save(QDataStream &out)
{
    log("save");
    return onSave ? onSave(out) : CSVGBase::save(out);
}

bool TestShape::load(QDataStream &in)
{
    log("load");
    return onLoad ? onLoad(in) : CSVGBase::load(in);
}

bool TestShape::saveJson(QJsonObject &object)
{
    log("saveJson");
    return onSaveJson ? onSaveJson(object) : CSVGBase::saveJson(object);
}

bool TestShape::loadJson(QJsonObject &object)
{
    log("loadJson");
    return onLoadJson ? onLoadJson(object) : CSVGBase::loadJson(object);
}

bool TestShape::SavePropertyForPlayback(QDataStream &out)
{
    log("SavePropertyForPlayback");
    return CSVGBase::SavePropertyForPlayback(out);
}

bool TestShape::LoadPropertyForPlayback(QDataStream &in)
{
    log("LoadPropertyForPlayback");
    return CSVGBase::LoadPropertyForPlayback(in);
}

bool TestShape::DoPlaybackActionEx(int actionId, QDataStream &in)
{
    log("DoPlaybackActionEx", {actionId});
    return onDoPlaybackActionEx ? onDoPlaybackActionEx(actionId, in) : CSVGBase::DoPlaybackActionEx(actionId, in);
}

bool TestShape::getAllAttributes(QMap<QString, QVariant> &map)
{
    log("getAllAttributes");
    return onGetAllAttributes ? onGetAllAttributes(map) : CSVGBase::getAllAttributes(map);
}

bool TestShape::setAllAttributes(const QMap<QString, QVariant> &map, bool flag)
{
    log("setAllAttributes", {map, flag});
    return onSetAllAttributes ? onSetAllAttributes(map, flag) : CSVGBase::setAllAttributes(map, flag);
}

bool TestShape::GetAttribute(int propId, QDataStream &out)
{
    log("GetAttribute", {propId});
    return onGetAttribute ? onGetAttribute(propId, out) : CSVGBase::GetAttribute(propId, out);
}

bool TestShape::SetAttribute(int propId, QDataStream &in, bool record, bool addUndo)
{
    log("SetAttribute", {propId, record, addUndo});
    return onSetAttribute ? onSetAttribute(propId, in, record, addUndo)
                          : CSVGBase::SetAttribute(propId, in, record, addUndo);
}

bool TestShape::GetSpecialProperty(int propId, QDataStream &out)
{
    log("GetSpecialProperty", {propId});
    return onGetSpecialProperty ? onGetSpecialProperty(propId, out) : CSVGBase::GetSpecialProperty(propId, out);
}

bool TestShape::SetSpecialProperty(int propId, QDataStream &in, bool record)
{
    log("SetSpecialProperty", {propId, record});
    return onSetSpecialProperty ? onSetSpecialProperty(propId, in, record)
                                : CSVGBase::SetSpecialProperty(propId, in, record);
}

void TestShape::PopupObjectMenu(void *where)
{
    log("PopupObjectMenu", {where != nullptr});
    CSVGBase::PopupObjectMenu(where);
}

void TestShape::paint(QPainter *painter, bool toCache)
{
    log("paint", {toCache});
    onPaint ? onPaint(painter, toCache) : CSVGBase::paint(painter, toCache);
}

void TestShape::paintEx(QPainter *painter, float scale, bool toCache)
{
    log("paintEx", {scale, toCache});
    onPaintEx ? onPaintEx(painter, scale, toCache) : CSVGBase::paintEx(painter, scale, toCache);
}

bool TestShape::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    log("mousePressEvent");
    return onMousePress ? onMousePress(event) : CSVGBase::mousePressEvent(event);
}

bool TestShape::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    log("mouseMoveEvent");
    return onMouseMove ? onMouseMove(event) : CSVGBase::mouseMoveEvent(event);
}

bool TestShape::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    log("mouseReleaseEvent");
    return onMouseRelease ? onMouseRelease(event) : CSVGBase::mouseReleaseEvent(event);
}

bool TestShape::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    log("mouseDoubleClickEvent");
    return onMouseDoubleClick ? onMouseDoubleClick(event) : CSVGBase::mouseDoubleClickEvent(event);
}

void TestShape::keyPressEvent(QKeyEvent *event)
{
    log("keyPressEvent");
    CSVGBase::keyPressEvent(event);
}

QString TestShape::getSVG()
{
    log("getSVG");
    return templateText.isEmpty() ? CSVGBase::getSVG() : templateText;
}

int TestShape::getSVGType()
{
    return type;
}

bool TestShape::updateAllControlPoints(bool refresh, bool finished)
{
    log("updateAllControlPoints", {refresh, finished});
    return onUpdateAllControlPoints ? onUpdateAllControlPoints(refresh, finished)
                                    : CSVGBase::updateAllControlPoints(refresh, finished);
}

QSizeF TestShape::getDefaultSVGSize()
{
    return onGetDefaultSVGSize ? onGetDefaultSVGSize() : CSVGBase::getDefaultSVGSize();
}

void TestShape::updateOutlineRegion()
{
    log("updateOutlineRegion");
    onUpdateOutlineRegion ? onUpdateOutlineRegion() : CSVGBase::updateOutlineRegion();
}

void TestShape::setSize(QSizeF oldSize, QSizeF newSize)
{
    log("setSize", {oldSize, newSize});
    onSetSize ? onSetSize(oldSize, newSize) : CSVGBase::setSize(oldSize, newSize);
}

QSizeF TestShape::getMinimizeSize()
{
    return onGetMinimizeSize ? onGetMinimizeSize() : CSVGBase::getMinimizeSize();
}

int TestShape::getMaxPenWidth()
{
    log("getMaxPenWidth");
    return onGetMaxPenWidth ? onGetMaxPenWidth() : CSVGBase::getMaxPenWidth();
}

void TestShape::notifyObjectCreated()
{
    log("notifyObjectCreated");
    CSVGBase::notifyObjectCreated();
}

bool TestShape::CheckHitTestHandlers(const QPointF &pos)
{
    log("CheckHitTestHandlers", {pos});
    return onCheckHitTestHandlers ? onCheckHitTestHandlers(pos) : CSVGBase::CheckHitTestHandlers(pos);
}

void TestShape::setFillBrush(const QBrush &brush, bool record, bool notify)
{
    log("setFillBrush", {brush, record, notify});
    onSetFillBrush ? onSetFillBrush(brush, record, notify) : CSVGBase::setFillBrush(brush, record, notify);
}

bool TestShape::GetSettingArray(QJsonArray &settings)
{
    log("GetSettingArray");
    return onGetSettingArray ? onGetSettingArray(settings) : CSVGBase::GetSettingArray(settings);
}

bool TestShape::SetSettingArray(QMap<QString, QString> &values, bool record, bool undo)
{
    log("SetSettingArray", {record, undo});
    return onSetSettingArray ? onSetSettingArray(values, record, undo)
                             : CSVGBase::SetSettingArray(values, record, undo);
}

bool TestShape::GetSettingJson(QString &out)
{
    log("GetSettingJson");
    return onGetSettingJson ? onGetSettingJson(out) : CSVGBase::GetSettingJson(out);
}

bool TestShape::SetSettingJson(const QString &json, bool record, bool undo)
{
    log("SetSettingJson", {json, record, undo});
    return onSetSettingJson ? onSetSettingJson(json, record, undo) : CSVGBase::SetSettingJson(json, record, undo);
}

bool TestShape::updateSVG(QZeSvgNode *node, QPointF delta, bool refresh)
{
    log("updateSVG", {idOf(node), delta, refresh, updateFinished});
    return onUpdateNode ? onUpdateNode(node, delta, refresh) : CSVGBase::updateSVG(node, delta, refresh);
}

bool TestShape::updateSVG(bool refresh)
{
    log("updateSVG(bool)", {refresh});
    return onUpdateSVG ? onUpdateSVG(refresh) : CSVGBase::updateSVG(refresh);
}

double TestShape::getXMin(QZeSvgNode *node)
{
    return onGetXMin ? onGetXMin(node) : CSVGBase::getXMin(node);
}

QBrush TestShape::getFillBrush()
{
    return onGetFillBrush ? onGetFillBrush() : CSVGBase::getFillBrush();
}

QColor TestShape::getPenColor()
{
    log("getPenColor");
    return CSVGBase::getPenColor();
}

void TestShape::setPenColor(QColor color, bool record)
{
    log("setPenColor", {color, record});
    CSVGBase::setPenColor(color, record);
}

Qt::PenStyle TestShape::getPenStyle()
{
    log("getPenStyle");
    return CSVGBase::getPenStyle();
}

void TestShape::setPenStyle(Qt::PenStyle style, bool record)
{
    log("setPenStyle", {int(style), record});
    CSVGBase::setPenStyle(style, record);
}

int TestShape::getPenWidth()
{
    log("getPenWidth");
    return onGetPenWidth ? onGetPenWidth() : CSVGBase::getPenWidth();
}

void TestShape::setPenWidth(int width, bool record)
{
    log("setPenWidth", {width, record});
    CSVGBase::setPenWidth(width, record);
}

bool TestShape::getInnerProperty(int propId, QDataStream &out)
{
    log("getInnerProperty", {propId});
    return onGetInnerProperty ? onGetInnerProperty(propId, out) : CSVGBase::getInnerProperty(propId, out);
}

bool TestShape::setInnerProperty(int propId, QDataStream &in, bool record, bool addUndo)
{
    log("setInnerProperty", {propId, record, addUndo});
    return onSetInnerProperty ? onSetInnerProperty(propId, in, record, addUndo)
                              : CSVGBase::setInnerProperty(propId, in, record, addUndo);
}

void TestShape::initPropItems()
{
    log("initPropItems");
    CSVGBase::initPropItems();
}

void TestShape::initSpecialPropItems()
{
    log("initSpecialPropItems", {propItems.size()});
    onInitSpecialPropItems ? onInitSpecialPropItems() : CSVGBase::initSpecialPropItems();
}

QString TestShape::getPropName(int propId)
{
    return onGetPropName ? onGetPropName(propId) : CSVGBase::getPropName(propId);
}

void TestShape::initGlobalPropValues()
{
    log("initGlobalPropValues");
    onInitGlobalPropValues ? onInitGlobalPropValues() : CSVGBase::initGlobalPropValues();
}

void TestShape::updateAfterPenWidthChanged(int size)
{
    log("updateAfterPenWidthChanged", {size, controlPointSize});
    onUpdateAfterPenWidthChanged ? onUpdateAfterPenWidthChanged(size) : CSVGBase::updateAfterPenWidthChanged(size);
}

bool TestShape::CanMoveControlPoint(QZeSvgNode *node, QPointF pos)
{
    log("CanMoveControlPoint", {idOf(node), pos});
    return onCanMoveControlPoint ? onCanMoveControlPoint(node, pos) : CSVGBase::CanMoveControlPoint(node, pos);
}

int TestShape::actionIdToPropId(int actionId)
{
    log("actionIdToPropId", {actionId});
    return CSVGBase::actionIdToPropId(actionId);
}

bool TestShape::getOutlinePath(QPainterPath *path)
{
    log("getOutlinePath");
    return onGetOutlinePath ? onGetOutlinePath(path) : CSVGBase::getOutlinePath(path);
}

} // namespace support
