#pragma once

#include "panels/forms/selectionpanel.h"
#include "panels/properties/commonproperties.h"

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
    QString titleKey(int row) const override { return m_properties[row].property.nameKey; }
    void apply(CBaseObject *object, int row, const QVariant &value, bool forGood) override;

private:
    ValueEditor *makeEditor(const CommonProperty &common) const;
    ValueEditor *makeChoice(const pagehost::AttributeDescription &property) const;
    FormRow rowOf(const CommonProperty &common) const;

    QVector<CommonProperty> m_properties; ///< row by row
};

} // namespace board
