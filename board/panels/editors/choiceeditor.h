#pragma once

#include "panels/editors/valueeditor.h"

#include <QtCore/QVector>
#include <QtGui/QIcon>

class QComboBox;

namespace board {

struct ChoiceEntry
{
    QString text;
    QIcon icon;
};

/// One of several entries; its value is the number of the entry, from 0.
class ChoiceEditor : public ValueEditor
{
    Q_OBJECT

public:
    ChoiceEditor(const QVector<ChoiceEntry> &entries, const QSize &iconSize, QWidget *parent = nullptr);

    void showValue(const QVariant &value) override;
    void showMixed() override;
    void setName(const QString &name) override;

private:
    QComboBox *m_box;
};

} // namespace board
