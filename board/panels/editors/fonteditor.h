#pragma once

#include "panels/editors/valueeditor.h"

class QComboBox;

namespace board {

/// A family of letters, or the usual one: an empty text. A present one that is not offered stays.
class FontEditor : public ValueEditor
{
    Q_OBJECT

public:
    FontEditor(const QString &usualName, const QStringList &families, QWidget *parent = nullptr);

    void showValue(const QVariant &value) override;
    void showMixed() override;
    void setName(const QString &name) override;

private:
    QComboBox *m_box;
};

} // namespace board
