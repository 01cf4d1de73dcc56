#include "panels/properties/propertypanel.h"

#include "core/workspace.h"
#include "panels/editors/choiceeditor.h"
#include "panels/editors/coloreditor.h"
#include "panels/editors/slidereditor.h"
#include "panels/editors/switcheditor.h"
#include "panels/editors/texteditor.h"
#include "panels/settings/settingicons.h"

#include <framework/cbaseobject.h>

using pagehost::AttributeDescription;

namespace board {

namespace {

QVector<AttributeDescription> propertiesOf(CBaseObject *object)
{
    QVector<AttributeDescription> properties;
    const QList<int> ids = object->getAttributeIds();
    for (const int id : ids)
        if (const auto property = pagehost::attributeOf(object, id))
            properties.append(*property);
    return properties;
}

QString structureOf(const CommonProperty &common)
{
    QString structure = QStringLiteral("%1 %2 %3 %4 %5")
                            .arg(common.property.kind)
                            .arg(common.property.id)
                            .arg(common.range.minimum)
                            .arg(common.range.maximum)
                            .arg(common.range.step);
    for (const AttributeDescription::Entry &entry : common.property.entries)
        structure += QLatin1Char('|') + entry.text;
    return structure;
}

} // namespace

PropertyPanel::PropertyPanel(const Workspace *workspace, QWidget *parent)
    : SelectionPanel(workspace, parent)
{
}

QVector<FormRow> PropertyPanel::describe(const QVector<CBaseObject *> &objects)
{
    QVector<QVector<AttributeDescription>> all;
    for (CBaseObject *object : objects)
        all.append(propertiesOf(object));
    m_properties = commonProperties(all);
    QVector<FormRow> rows;
    for (const CommonProperty &common : qAsConst(m_properties))
        rows.append(rowOf(common));
    return rows;
}

FormRow PropertyPanel::rowOf(const CommonProperty &common) const
{
    FormRow row;
    row.structure = structureOf(common);
    row.caption = workspace().text(common.property.nameKey);
    row.makeEditor = [this, common] { return makeEditor(common); };
    row.value = common.property.value;
    row.isMixed = common.isMixed;
    row.isEnabled = common.property.isEnabled;
    return row;
}

ValueEditor *PropertyPanel::makeEditor(const CommonProperty &common) const
{
    switch (common.property.kind) {
    case AttributeDescription::Choice:
        return makeChoice(common.property);
    case AttributeDescription::Color:
    case AttributeDescription::Brush:
        return new ColorEditor(&workspace());
    case AttributeDescription::Whole:
    case AttributeDescription::Real:
        return new NumberEditor(&workspace(), common.range, {});
    case AttributeDescription::WholeRange:
    case AttributeDescription::RealRange:
        return new SliderEditor(&workspace(), common.range, {});
    case AttributeDescription::Switch:
        return new SwitchEditor;
    default:
        return new TextEditor;
    }
}

ValueEditor *PropertyPanel::makeChoice(const AttributeDescription &property) const
{
    QVector<ChoiceEntry> entries;
    for (const AttributeDescription::Entry &entry : property.entries)
        entries.append({workspace().text(entry.text), adaptedIcon(entry.icon, palette().color(QPalette::Text))});
    return new ChoiceEditor(entries, choiceIconSize);
}

void PropertyPanel::apply(CBaseObject *object, int row, const QVariant &value, bool forGood)
{
    const AttributeDescription &property = m_properties[row].property;
    pagehost::giveAttribute(object, property.id, pagehost::attributeAnswer(property, value), forGood);
}

} // namespace board
