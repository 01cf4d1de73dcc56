// Operations of the page object that it forwards to its shape core.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include "object/operations.h"

QString CSVGObj::getObjName()
{
    return objName;
}

void CSVGObj::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    CBaseObject::paint(painter, option, widget);
}

bool CSVGObj::canDo(OperationType operation)
{
    return isShapeOperation(operation) || CBaseObject::canDo(operation);
}

QVariant CSVGObj::itemChange(GraphicsItemChange change, const QVariant &value)
{
    if (change == ItemSelectedHasChanged && svgBase)
        svgBase->setSelected(isSelected());
    return CBaseObject::itemChange(change, value);
}

void CSVGObj::updateRectChanged()
{
    updateAfterObjRectChanged(GetGraphicsItemPtr(), true);
}

void CSVGObj::notifyOutlineRegionChanged()
{
    regenRegionShape(nullptr);
}

void CSVGObj::callback(QPainter *) {}

bool CSVGObj::DoPlaybackActionEx(int actionId, QDataStream &in)
{
    return svgBase && svgBase->DoPlaybackActionEx(actionId, in);
}

bool CSVGObj::GetSettingJson(QString &out)
{
    return svgBase && svgBase->GetSettingJson(out);
}

bool CSVGObj::SetSettingJson(const QString &json, bool record, bool undo)
{
    return svgBase && svgBase->SetSettingJson(json, record, undo);
}

void CSVGObj::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    if (svgBase)
        svgBase->mouseDoubleClickEvent(event);
}

void CSVGObj::keyPressEvent(QKeyEvent *event)
{
    if (svgBase)
        svgBase->keyPressEvent(event);
}

void CSVGObj::PopupObjectMenu(void *where)
{
    // Deliberately without a test: a host opens the menu of a fully built object only.
    Q_ASSERT(svgBase);
    svgBase->PopupObjectMenu(where);
}

// Unlike attributes, special properties never reach the host base without a shape core.
bool CSVGObj::GetSpecialProperty(int id, QDataStream &out)
{
    if (!svgBase)
        return false;
    return svgBase->GetSpecialProperty(id, out) || CPSRootObject::GetSpecialProperty(id, out);
}

bool CSVGObj::SetSpecialProperty(int id, QDataStream &in, bool record)
{
    if (!svgBase)
        return false;
    return svgBase->SetSpecialProperty(id, in, record) || CPSRootObject::SetSpecialProperty(id, in, record);
}

QJsonObject CSVGObj::GetSettingJsonComboBox(QString &id, QString &title, int index, QList<QString> &icons,
                                            QList<QString> &texts)
{
    return CPSRootObject::GetSettingJsonComboBox(id, title, index, icons, texts);
}

QJsonObject CSVGObj::GetSettingJsonColorPicker(QString &id, QString &title, QString &color)
{
    return CPSRootObject::GetSettingJsonColorPicker(id, title, color);
}

QJsonObject CSVGObj::GetSettingJsonInput(QString &id, QString &title, QString &value, QString &type,
                                         QString &minimum, QString &maximum, QString &unit)
{
    return CPSRootObject::GetSettingJsonInput(id, title, value, type, minimum, maximum, unit);
}

QJsonObject CSVGObj::GetSettingJsonSwitch(QString &id, QString &title, bool on)
{
    return CPSRootObject::GetSettingJsonSwitch(id, title, on);
}

QJsonObject CSVGObj::GetSettingJsonSlider(QString &id, QString &title, QString &value, QString &minimum,
                                          QString &maximum, QString &step, QString &unit)
{
    return CPSRootObject::GetSettingJsonSlider(id, title, value, minimum, maximum, step, unit);
}

QJsonObject CSVGObj::GetSettingJsonCommond(QString &id, QString &title, QString &command)
{
    return CPSRootObject::GetSettingJsonCommond(id, title, command);
}

bool CSVGObj::ParseSettingJson(const QString &json, QMap<QString, QString> &values)
{
    return CPSRootObject::ParseSettingJson(json, values);
}
