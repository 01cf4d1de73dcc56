#include "recordingframework.h"
#include "rootrecord.h"

#include <recordinghost/log/calllog.h>

#include <QtCore/QDataStream>
#include <QtGui/QPainter>
#include <QtWidgets/QGraphicsItem>
#include <QtWidgets/QGraphicsView>

namespace {

void log(const char *operation, const QVariantList &arguments = {})
{
    recording::log(QStringLiteral("object"), operation, arguments);
}

} // namespace

CPSRootObject::CPSRootObject(IPsPage *page, QGraphicsItem *item)
    : attributeIds(recording::framework().attributeIds)
    , fillProp(new CPageBgProp(page))
    , d(std::make_unique<CPSRootObjectPrivate>())
{
    d->item = item;
    d->page = page;
    objName = QStringLiteral("unnamed");
}

CPSRootObject::~CPSRootObject()
{
    log("delete");
    delete fillProp;
    delete regionPath;
}

QString CPSRootObject::getObjName()
{
    return objName;
}

void CPSRootObject::OnQPainterDraw(QPainter *painter)
{
    log("CPSRootObject::OnQPainterDraw", {painter != nullptr});
}

void CPSRootObject::beginPaint(QPainter *painter)
{
    log("beginPaint", {painter->isActive()});
    if (painter->isActive())
        painter->save();
}

void CPSRootObject::endPaint(QPainter *painter)
{
    log("endPaint", {painter->isActive()});
    if (painter->isActive())
        painter->restore();
}

void CPSRootObject::clearLayerEffectCache(int reason)
{
    log("clearLayerEffectCache", {reason});
}

bool CPSRootObject::canDo(OperationType operation)
{
    log("canDo", {int(operation)});
    return recording::framework().baseAnswer;
}

bool CPSRootObject::save(QDataStream &out)
{
    log("save");
    out << clientRect;
    return true;
}

bool CPSRootObject::load(QDataStream &in)
{
    log("load");
    in >> clientRect;
    return true;
}

bool CPSRootObject::saveJson(QJsonObject &object)
{
    log("saveJson");
    object["hostWidth"] = clientRect.width();
    object["hostHeight"] = clientRect.height();
    return true;
}

bool CPSRootObject::loadJson(QJsonObject &object)
{
    log("loadJson");
    clientRect.setSize({object["hostWidth"].toDouble(), object["hostHeight"].toDouble()});
    return true;
}

void CPSRootObject::setSize(QSizeF size, bool flag, bool redraw)
{
    log("setSize", {size, flag, redraw});
    if (size.width() != clientRect.width() || size.height() != clientRect.height())
        clientRect.setSize(size);
}

void CPSRootObject::regenRegionShape(QGraphicsItem *item)
{
    log("regenRegionShape", {item != nullptr});
}

bool CPSRootObject::SavePropertyForPlayback(QDataStream &out)
{
    log("SavePropertyForPlayback");
    out << clientRect;
    return recording::framework().playbackAnswer;
}

bool CPSRootObject::LoadPropertyForPlayback(QDataStream &in)
{
    log("LoadPropertyForPlayback");
    in >> clientRect;
    return recording::framework().playbackAnswer;
}

bool CPSRootObject::DoPlaybackActionEx(int actionId, QDataStream &)
{
    log("DoPlaybackActionEx", {actionId});
    return recording::framework().baseAnswer;
}

bool CPSRootObject::getAllAttributes(QMap<QString, QVariant> &map)
{
    log("getAllAttributes");
    map["host"] = true;
    return recording::framework().baseAnswer;
}

bool CPSRootObject::setAllAttributes(const QMap<QString, QVariant> &map, bool flag)
{
    log("setAllAttributes", {map, flag});
    return recording::framework().baseAnswer;
}

bool CPSRootObject::GetAttribute(int id, QDataStream &)
{
    log("GetAttribute", {id});
    return recording::framework().baseAnswer;
}

bool CPSRootObject::SetAttribute(int id, QDataStream &, bool record)
{
    log("SetAttribute", {id, record});
    return recording::framework().baseAnswer;
}

bool CPSRootObject::GetSpecialProperty(int id, QDataStream &)
{
    log("GetSpecialProperty", {id});
    return recording::framework().baseAnswer;
}

bool CPSRootObject::SetSpecialProperty(int id, QDataStream &, bool record)
{
    log("SetSpecialProperty", {id, record});
    return recording::framework().baseAnswer;
}

void CPSRootObject::PopupObjectMenu(void *)
{
    log("PopupObjectMenu");
}

bool CPSRootObject::CheckHitTestHandlers(const QPointF &scenePos, CObjAction::ACT_Def &action)
{
    log("CheckHitTestHandlers", {scenePos});
    if (recording::framework().baseAnswer)
        action = CObjAction::ACT_Def(recording::framework().baseAction);
    return recording::framework().baseAnswer;
}

void CPSRootObject::setFillProp(CPageBgProp *prop, bool record)
{
    if (!prop) {
        log("setFillProp", {QVariant(), record});
        return;
    }
    log("setFillProp", {prop->fillColor(), prop->opacity(), prop->isFillEnable(), prop->fillType(),
                        prop->isFollowingPage(), record});
    const bool sameColor = prop->fillColor() == fillProp->fillColor() && prop->opacity() == fillProp->opacity();
    const bool keepsPicture =
        prop->fillType() == CPageBgProp::SolidFill && fillProp->fillType() > CPageBgProp::SolidFill && sameColor;
    if (!keepsPicture)
        *fillProp = *prop;
    fillBrush = fillProp->createBrushByProp(clientRect, false);
}

bool CPSRootObject::GetSettingJson(QString &)
{
    log("GetSettingJson");
    return recording::framework().baseAnswer;
}

bool CPSRootObject::SetSettingJson(const QString &json, bool record, bool undo)
{
    log("SetSettingJson", {json, record, undo});
    return recording::framework().baseAnswer;
}

void CPSRootObject::updateRectChanged()
{
    log("updateRectChanged");
}

bool CPSRootObject::isVisible() const
{
    return d->item->isVisible();
}

void CPSRootObject::setLocked(bool locked)
{
    log("setLocked", {locked});
    d->locked = locked;
}

bool CPSRootObject::isLocked() const
{
    return d->locked;
}

void CPSRootObject::RecordAction(int actionId, QByteArray *data)
{
    log("RecordAction", {actionId, data ? QVariant(*data) : QVariant()});
}

void CPSRootObject::notifyObjPropertyChanged(int id, const QString &value)
{
    log("notifyObjPropertyChanged", {id, value});
}

void CPSRootObject::onCreateFinished(bool byUser)
{
    log("onCreateFinished", {byUser});
}

void CPSRootObject::updateAfterObjRectChanged(QGraphicsItem *item, bool redraw)
{
    log("updateAfterObjRectChanged", {item != nullptr, redraw});
}

IPsPage *CPSRootObject::GetPage() const
{
    log("GetPage");
    return d->page;
}

void CPSRootObject::SetPage(IPsPage *page)
{
    d->page = page;
}

QPointF CPSRootObject::getPos() const
{
    return d->item->scenePos();
}

void CPSRootObject::setPos(QPointF pos, bool record)
{
    log("setPos", {pos, record});
    d->item->setPos(pos);
}

void CPSRootObject::setRotateByPoint(double degrees, QPointF center, bool record)
{
    log("setRotateByPoint", {degrees, center, record});
    const QPointF unrotated = d->item->pos() + center;
    d->item->setRotation(degrees);
    const QPointF moved = unrotated - d->item->mapToScene(center);
    d->item->moveBy(moved.x(), moved.y());
}

void CPSRootObject::setMirror(bool horizontal, bool vertical, bool record)
{
    log("setMirror", {horizontal, vertical, record});
    mirrorHorizontal = horizontal;
    mirrorVertical = vertical;
}

void CPSRootObject::update()
{
    log("update");
    d->item->update();
}

double CPSRootObject::getCurZoomRate() const
{
    return recording::framework().zoomRate;
}

QGraphicsView *CPSRootObject::FindFirstVisibleView(QList<QGraphicsView *> &views)
{
    for (QGraphicsView *view : qAsConst(views))
        if (view && view->isVisible())
            return view;
    return nullptr;
}

void CPSRootObject::setHandlesDisable(CObjAction::ACT_Def handle, bool disable)
{
    log("setHandlesDisable", {int(handle), disable});
    if (disable)
        d->disabledHandles.insert(handle);
    else
        d->disabledHandles.remove(handle);
}

bool CPSRootObject::isHandleDisabled(CObjAction::ACT_Def handle) const
{
    return d->disabledHandles.contains(handle);
}

void CPSRootObject::setMyPenColor(QColor color, bool notify)
{
    log("setMyPenColor", {color, notify});
    myPen.setColor(color);
}

void CPSRootObject::setSubType(int subType)
{
    log("setSubType", {subType});
    d->subType = subType;
}

int CPSRootObject::getSubType() const
{
    return d->subType;
}

QJsonObject CPSRootObject::GetSettingJsonComboBox(QString &id, QString &title, int index, QList<QString> &icons,
                                                  QList<QString> &texts)
{
    log("GetSettingJsonComboBox", {id, title, index, QStringList(icons), QStringList(texts)});
    return {{"kind", "combobox"}, {"id", id}};
}

QJsonObject CPSRootObject::GetSettingJsonColorPicker(QString &id, QString &title, QString &color)
{
    log("GetSettingJsonColorPicker", {id, title, color});
    return {{"kind", "colorpicker"}, {"id", id}};
}

QJsonObject CPSRootObject::GetSettingJsonInput(QString &id, QString &title, QString &value, QString &type,
                                               QString &minimum, QString &maximum, QString &unit)
{
    log("GetSettingJsonInput", {id, title, value, type, minimum, maximum, unit});
    return {{"kind", "input"}, {"id", id}};
}

QJsonObject CPSRootObject::GetSettingJsonSwitch(QString &id, QString &title, bool on)
{
    log("GetSettingJsonSwitch", {id, title, on});
    return {{"kind", "switch"}, {"id", id}};
}

QJsonObject CPSRootObject::GetSettingJsonSlider(QString &id, QString &title, QString &value, QString &minimum,
                                                QString &maximum, QString &step, QString &unit)
{
    log("GetSettingJsonSlider", {id, title, value, minimum, maximum, step, unit});
    return {{"kind", "slider"}, {"id", id}};
}

QJsonObject CPSRootObject::GetSettingJsonCommond(QString &id, QString &title, QString &command)
{
    log("GetSettingJsonCommond", {id, title, command});
    return {{"kind", "command"}, {"id", id}};
}

bool CPSRootObject::ParseSettingJson(const QString &json, QMap<QString, QString> &values)
{
    log("ParseSettingJson", {json});
    if (recording::framework().settingsParse)
        values = recording::framework().settings;
    return recording::framework().settingsParse;
}
