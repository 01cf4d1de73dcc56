#include "panels/editors/numberfield.h"

#include <QtWidgets/QLineEdit>

namespace board {

namespace {

const QString mixedSign = QStringLiteral("—");

} // namespace

NumberField::NumberField(const NumberRange &range, const QString &unit, QWidget *parent)
    : QDoubleSpinBox(parent)
{
    setDecimals(range.decimals);
    setRange(range.minimum, range.maximum);
    setSingleStep(range.step);
    setKeyboardTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    setLocale(QLocale::c());
    if (!unit.isEmpty())
        setSuffix(QLatin1Char(' ') + unit);
    connect(this, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this](double number) {
        m_mixed = false;
        Q_EMIT numberPicked(number);
    });
}

void NumberField::showNumber(double number)
{
    const QSignalBlocker quiet(this);
    m_mixed = false;
    setValue(number);
}

void NumberField::showMixed()
{
    const QSignalBlocker quiet(this);
    m_mixed = true;
    // Refreshes the text even when the number below it stays.
    setValue(minimum());
    lineEdit()->setText(textFromValue(minimum()));
}

QString NumberField::textFromValue(double number) const
{
    return m_mixed ? mixedSign : QDoubleSpinBox::textFromValue(number);
}

double NumberField::valueFromText(const QString &text) const
{
    return text.contains(mixedSign) ? value() : QDoubleSpinBox::valueFromText(text);
}

QValidator::State NumberField::validate(QString &text, int &pos) const
{
    return text.contains(mixedSign) ? QValidator::Acceptable : QDoubleSpinBox::validate(text, pos);
}

void NumberField::stepBy(int steps)
{
    m_mixed = false;
    QDoubleSpinBox::stepBy(steps);
}

} // namespace board
