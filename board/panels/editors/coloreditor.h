#pragma once

#include "panels/editors/valueeditor.h"

namespace board {

class ColorButton;
class Workspace;

/// A QColor with its alpha.
class ColorEditor : public ValueEditor
{
    Q_OBJECT

public:
    explicit ColorEditor(const Workspace *workspace, QWidget *parent = nullptr);

    void showValue(const QVariant &value) override;
    void showMixed() override;
    void setName(const QString &name) override;

private:
    ColorButton *m_button;
};

} // namespace board
