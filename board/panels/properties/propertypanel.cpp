#include "panels/properties/propertypanel.h"

#include "core/workspace.h"
#include "panels/editors/choiceeditor.h"
#include "panels/editors/coloreditor.h"
#include "panels/editors/slidereditor.h"
#include "panels/editors/switcheditor.h"
#include "panels/editors/texteditor.h"
#include "panels/properties/commonproperties.h"
#include "panels/settings/settingicons.h"

#include <framework/cbaseobject.h>

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>

namespace board {

namespace {

QVector<PropertyDescription> propertiesOf(CBaseObject *object)
{
    QVector<PropertyDescription> properties;
    for (const int id : object->getAttributeIds()) {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        if (!object->GetAttribute(id, out))
            continue;
        if (const auto property = parseAttribute(id, bytes))
            properties.append(*property);
    }
    return properties;
}

QString structureOf(const PropertyDescription &property)
{
    QString structure = QStringLiteral("%1 %2 %3 %4 %5")
                            .arg(property.kind)
                            .arg(property.id)
                            .arg(property.range.minimum)
                            .arg(property.range.maximum)
                            .arg(property.range.step);
    for (const PropertyDescription::Entry &entry : property.entries)
        structure += QLatin1Char('|') + entry.text;
    return structure;
}

} // namespace

PropertyPanel::PropertyPanel(const Workspace *workspace, QWidget *parent)
    : SelectionPanel(workspace, "IDS_BOARD_PROPERTIES_ADVICE", parent)
{
}

QVector<FormRow> PropertyPanel::describe(const QVector<CBaseObject *> &objects)
{
    QVector<QVector<PropertyDescription>> all;
    for (CBaseObject *object : objects)
        all.append(propertiesOf(object));
    QVector<FormRow> rows;
    m_properties.clear();
    for (const CommonProperty &common : commonProperties(all)) {
        m_properties.append(common.property);
        rows.append(rowOf(common.property, common.isMixed));
    }
    return rows;
}

FormRow PropertyPanel::rowOf(const PropertyDescription &property, bool isMixed) const
{
    FormRow row;
    row.structure = structureOf(property);
    row.caption = workspace().text(property.nameKey);
    row.makeEditor = [this, property] { return makeEditor(property); };
    row.value = property.value;
    row.isMixed = isMixed;
    row.isEnabled = property.isEnabled;
    return row;
}

ValueEditor *PropertyPanel::makeEditor(const PropertyDescription &property) const
{
    switch (property.kind) {
    case PropertyDescription::Choice:
        return makeChoice(property);
    case PropertyDescription::Color:
    case PropertyDescription::Brush:
        return new ColorEditor(&workspace());
    case PropertyDescription::Whole:
    case PropertyDescription::Real:
        return new NumberEditor(property.range, {});
    case PropertyDescription::WholeRange:
    case PropertyDescription::RealRange:
        return new SliderEditor(property.range, {});
    case PropertyDescription::Switch:
        return new SwitchEditor;
    default:
        return new TextEditor;
    }
}

ValueEditor *PropertyPanel::makeChoice(const PropertyDescription &property) const
{
    QVector<ChoiceEntry> entries;
    for (const PropertyDescription::Entry &entry : property.entries)
        entries.append({workspace().text(entry.text), adaptedIcon(entry.icon, palette().color(QPalette::Text))});
    return new ChoiceEditor(entries, choiceIconSize);
}

void PropertyPanel::apply(CBaseObject *object, int row, const QVariant &value, bool forGood)
{
    // The object may write its own answer over the value.
    QBuffer buffer;
    buffer.setData(attributeAnswer(m_properties[row], value));
    buffer.open(QIODevice::ReadWrite);
    QDataStream stream(&buffer);
    object->SetAttribute(m_properties[row].id, stream, forGood);
}

} // namespace board
