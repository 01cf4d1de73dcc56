#pragma once

#include "panels/editors/valueeditor.h"

class QLabel;
class QLineEdit;

namespace board {

/// A line of text, taken over by Enter or when the user goes elsewhere, with room for a
/// note below it.
class TextEditor : public ValueEditor
{
    Q_OBJECT

public:
    explicit TextEditor(QWidget *parent = nullptr);

    void showValue(const QVariant &value) override;
    void showMixed() override;
    void showNote(const QString &note) override;
    void setName(const QString &name) override;

private:
    void finish();

    QLineEdit *m_line;
    QLabel *m_note;
};

} // namespace board
