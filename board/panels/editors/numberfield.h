#pragma once

#include "panels/editors/numbereditor.h"

#include <QtWidgets/QDoubleSpinBox>

namespace board {

/// A field for a number, which may show that there are several. While it does, the first number typed or stepped to
/// is a change even when it is the one below the sign.
class NumberField : public QDoubleSpinBox
{
    Q_OBJECT

public:
    NumberField(const NumberRange &range, const QString &unit, QWidget *parent = nullptr);

    /// Shows a number without telling anybody.
    void showNumber(double number);
    void showMixed();

Q_SIGNALS:
    void numberPicked(double number);

protected:
    QString textFromValue(double number) const override;
    double valueFromText(const QString &text) const override;
    QValidator::State validate(QString &text, int &pos) const override;
    void stepBy(int steps) override;

private:
    bool m_mixed = false;
};

} // namespace board
