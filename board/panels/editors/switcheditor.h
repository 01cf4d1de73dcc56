#pragma once

#include "panels/editors/valueeditor.h"

#include <QtWidgets/QAbstractButton>

namespace board {

/// A knob in a groove: to the right for on, in the middle for neither.
class ToggleSwitch : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ToggleSwitch(QWidget *parent = nullptr);

    void setMixed(bool mixed);
    bool isMixed() const { return m_mixed; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool hitButton(const QPoint &pos) const override;

private:
    bool m_mixed = false;
};

/// A bool.
class SwitchEditor : public ValueEditor
{
    Q_OBJECT

public:
    explicit SwitchEditor(QWidget *parent = nullptr);

    void showValue(const QVariant &value) override;
    void showMixed() override;
    void setName(const QString &name) override;

private:
    ToggleSwitch *m_switch;
};

} // namespace board
