#pragma once

#include "panels/forms/selectionpanel.h"
#include "panels/settings/commonsettings.h"

namespace board {

/// Panel of the settings (CPSRootObject::GetSettingJson()) that all selected objects have, but for those of the
/// look. Those of letters, in the section "text", have a panel of their own.
class SettingsPanel : public SelectionPanel
{
    Q_OBJECT

public:
    enum Extent {
        All,  ///< but those of letters
        Text, ///< those of letters
        First ///< one that fits into a bar
    };
    explicit SettingsPanel(const Workspace *workspace, Extent extent = All, QWidget *parent = nullptr);

    /// As of the last refresh; without a selection there are none.
    bool isEmpty() const { return m_controls.isEmpty(); }

protected:
    QVector<FormRow> describe(const QVector<CBaseObject *> &objects) override;
    QString titleKey(int row) const override { return m_controls[row].titleKey; }
    void apply(CBaseObject *object, int row, const QVariant &value, bool forGood) override;

private:
    ValueEditor *makeEditor(const SettingControl &control) const;
    ValueEditor *makeChoice(const SettingControl &control) const;
    FormRow rowOf(const SettingControl &control, bool isMixed) const;

    QVector<CommonSetting> listed(QVector<CommonSetting> settings) const;

    Extent m_extent;
    QVector<SettingControl> m_controls; ///< row by row
};

} // namespace board
