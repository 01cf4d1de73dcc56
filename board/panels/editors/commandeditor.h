#pragma once

#include "panels/editors/valueeditor.h"

class QPushButton;

namespace board {

/// A button; its value is the command that it stands for.
class CommandEditor : public ValueEditor
{
    Q_OBJECT

public:
    explicit CommandEditor(const QString &command, QWidget *parent = nullptr);

    void showValue(const QVariant &) override {}
    void showMixed() override {}
    bool hasCaption() const override { return false; }
    /// The name stands on the button.
    void setName(const QString &name) override;

private:
    QPushButton *m_button;
};

} // namespace board
