#pragma once

#include "panels/forms/selectionpanel.h"
#include "panels/properties/attributestream.h"

namespace board {

/// Every property of the selected objects (CPSRootObject::getAttributeIds() and GetAttribute()), as far as all of
/// them have it.
class PropertyPanel : public SelectionPanel
{
    Q_OBJECT

public:
    explicit PropertyPanel(const Workspace *workspace, QWidget *parent = nullptr);

protected:
    QVector<FormRow> describe(const QVector<CBaseObject *> &objects) override;
    QString titleKey(int row) const override { return m_properties[row].nameKey; }
    void apply(CBaseObject *object, int row, const QVariant &value, bool forGood) override;

private:
    ValueEditor *makeEditor(const PropertyDescription &property) const;
    ValueEditor *makeChoice(const PropertyDescription &property) const;
    FormRow rowOf(const PropertyDescription &property, bool isMixed) const;

    QVector<PropertyDescription> m_properties; ///< row by row
};

} // namespace board
