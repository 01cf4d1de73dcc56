#pragma once

#include "panels/fields/numberrange.h"

#include <QtWidgets/QDoubleSpinBox>

#include <optional>

namespace board {

class Workspace;

/// A field for a number, which takes expressions ("120/3", "5 cm", "+10", "50 %") and shows whole numbers without
/// decimals. Text that is no number stays while a sentence says why; the escape key brings the number back.
///
/// The field may show that there are several numbers. While it does, the first one typed or stepped to is a change
/// even when it is the one below the sign.
class NumberField : public QDoubleSpinBox
{
    Q_OBJECT

public:
    NumberField(const Workspace *workspace, const NumberRange &range, const QString &unit,
                QWidget *parent = nullptr);

    /// Takes angles of any size, as those from 0 to below 360.
    void takeAngles();
    QSize sizeHint() const override;
    /// Shows a number without telling anybody.
    void showNumber(double number);
    void showMixed();
    bool isMixed() const { return m_mixed; }

Q_SIGNALS:
    void numberPicked(double number);

protected:
    QString textFromValue(double number) const override;
    double valueFromText(const QString &text) const override;
    QValidator::State validate(QString &text, int &pos) const override;
    void stepBy(int steps) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QString numberText(double number) const;
    QString shownText() const;
    QString withoutSuffix(const QString &text) const;
    std::optional<double> typedNumber(const QString &text) const;
    std::optional<double> acceptedNumber(const QString &text) const;
    bool isAcceptable() const;
    void putBack();
    void tellProblem();

    const Workspace *m_workspace;
    QString m_unit;
    bool m_isAngle = false;
    bool m_mixed = false;
};

} // namespace board
