#include "panels/editors/numbereditor.h"

#include "panels/fields/numberfield.h"

#include <QtWidgets/QHBoxLayout>

namespace board {

NumberEditor::NumberEditor(const Workspace *workspace, const NumberRange &range, const QString &unit,
                           QWidget *parent)
    : ValueEditor(parent)
    , m_field(new NumberField(workspace, range, unit, this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_field);
    connect(m_field, &NumberField::numberPicked, this, [this](double number) { Q_EMIT picked(number); });
}

void NumberEditor::showValue(const QVariant &value)
{
    m_field->showNumber(value.toDouble());
}

void NumberEditor::showMixed()
{
    m_field->showMixed();
}

void NumberEditor::setName(const QString &name)
{
    m_field->setAccessibleName(name);
    m_field->setToolTip(name);
}

} // namespace board
