#pragma once

#include "panels/editors/valueeditor.h"
#include "panels/fields/numberrange.h"

namespace board {

class NumberField;
class Workspace;

/// A number in a field, with a unit behind it.
class NumberEditor : public ValueEditor
{
    Q_OBJECT

public:
    NumberEditor(const Workspace *workspace, const NumberRange &range, const QString &unit,
                 QWidget *parent = nullptr);

    void showValue(const QVariant &value) override;
    void showMixed() override;
    void setName(const QString &name) override;

private:
    NumberField *m_field;
};

} // namespace board
