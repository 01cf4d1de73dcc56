#include "panels/editors/numbereditor.h"

#include "panels/editors/numberfield.h"

#include <QtWidgets/QHBoxLayout>

#include <cmath>

namespace board {

NumberRange NumberRange::common(const NumberRange &other) const
{
    return {qMax(minimum, other.minimum), qMin(maximum, other.maximum), qMin(step, other.step),
            qMax(decimals, other.decimals)};
}

int NumberRange::decimalsOf(double step)
{
    double scaled = std::abs(step);
    for (int decimals = 0; decimals < mostDecimals; ++decimals) {
        if (std::abs(scaled - std::round(scaled)) < 1e-6 * qMax(1.0, scaled))
            return decimals;
        scaled *= 10;
    }
    return mostDecimals;
}

bool operator==(const NumberRange &one, const NumberRange &other)
{
    return one.minimum == other.minimum && one.maximum == other.maximum && one.step == other.step &&
           one.decimals == other.decimals;
}

NumberEditor::NumberEditor(const NumberRange &range, const QString &unit, QWidget *parent)
    : ValueEditor(parent)
    , m_field(new NumberField(range, unit, this))
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
