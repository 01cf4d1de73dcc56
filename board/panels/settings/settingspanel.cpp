#include "panels/settings/settingspanel.h"

#include "core/fontfamilies.h"
#include "core/workspace.h"
#include "panels/editors/choiceeditor.h"
#include "panels/editors/coloreditor.h"
#include "panels/editors/commandeditor.h"
#include "panels/editors/fonteditor.h"
#include "panels/editors/slidereditor.h"
#include "panels/editors/switcheditor.h"
#include "panels/editors/texteditor.h"
#include "panels/settings/ownsettings.h"
#include "panels/settings/settingicons.h"

#include <framework/cbaseobject.h>

#include <QtCore/QStringList>

#include <algorithm>

namespace board {

namespace {

QString rangeText(const NumberRange &range)
{
    return QStringLiteral("%1 %2 %3 %4").arg(range.minimum).arg(range.maximum).arg(range.step).arg(range.decimals);
}

} // namespace

SettingsPanel::SettingsPanel(const Workspace *workspace, Extent extent, QWidget *parent)
    : SelectionPanel(workspace, parent)
    , m_extent(extent)
{
    if (extent == First)
        makeCompact();
}

QVector<CommonSetting> SettingsPanel::listed(QVector<CommonSetting> settings) const
{
    QVector<SettingControl> controls;
    for (const CommonSetting &setting : qAsConst(settings))
        controls.append(setting.control);
    const std::optional<SettingControl> first = firstOwnSetting(controls);
    const auto isElsewhere = [&](const CommonSetting &setting) {
        if (m_extent == First)
            return !first || setting.control.id != first->id;
        return !isOwnSetting(setting.control) || isOfLetters(setting.control) != (m_extent == Text);
    };
    settings.erase(std::remove_if(settings.begin(), settings.end(), isElsewhere), settings.end());
    return settings;
}

QVector<FormRow> SettingsPanel::describe(const QVector<CBaseObject *> &objects)
{
    QVector<QVector<SettingControl>> panels;
    for (CBaseObject *object : objects) {
        QString json;
        panels.append(object->GetSettingJson(json) ? parseSettings(json) : QVector<SettingControl>());
    }
    QVector<FormRow> rows;
    m_controls.clear();
    const QVector<CommonSetting> settings = listed(commonSettings(panels));
    for (const CommonSetting &setting : settings) {
        m_controls.append(setting.control);
        rows.append(rowOf(setting.control, setting.isMixed));
    }
    return rows;
}

FormRow SettingsPanel::rowOf(const SettingControl &control, bool isMixed) const
{
    FormRow row;
    row.structure = QStringList{QString::number(control.kind),
                                control.id,
                                rangeText(control.range),
                                control.unit,
                                control.icons.join(QLatin1Char('|')),
                                control.texts.join(QLatin1Char('|'))}
                        .join(QLatin1Char(';'));
    row.caption = workspace().text(control.titleKey);
    row.makeEditor = [this, control] { return makeEditor(control); };
    row.value = control.value;
    row.isMixed = isMixed;
    if (!isMixed)
        row.note = filledIn(workspace().text(control.messageKey), control.messageArguments);
    return row;
}

ValueEditor *SettingsPanel::makeEditor(const SettingControl &control) const
{
    switch (control.kind) {
    case SettingControl::Choice:
        return makeChoice(control);
    case SettingControl::Color:
        return new ColorEditor(&workspace());
    case SettingControl::Font:
        return new FontEditor(workspace().text("IDS_BOARD_USUAL_FONT"), fontFamilies());
    case SettingControl::Number:
        return new NumberEditor(&workspace(), control.range, control.unit);
    case SettingControl::Switch:
        return new SwitchEditor;
    case SettingControl::Slider:
        if (m_extent == First)
            return new NumberEditor(&workspace(), control.range, control.unit);
        return new SliderEditor(&workspace(), control.range, control.unit);
    case SettingControl::Command:
        return new CommandEditor(control.value.toString());
    default:
        return new TextEditor;
    }
}

ValueEditor *SettingsPanel::makeChoice(const SettingControl &control) const
{
    QVector<ChoiceEntry> entries;
    for (int i = 0; i < control.entryCount(); ++i) {
        const QIcon icon = settingIcon(control.icons.value(i), palette().color(QPalette::Text));
        QString text = workspace().text(control.texts.value(i));
        // A picture that the board doesn't have leaves a number to choose by.
        if (text.isEmpty() && icon.isNull())
            text = QString::number(i + 1);
        entries.append({text, icon});
    }
    return new ChoiceEditor(entries, choiceIconSize);
}

void SettingsPanel::apply(CBaseObject *object, int row, const QVariant &value, bool forGood)
{
    // A look is undoable too, so that it can be taken back.
    object->SetSettingJson(settingAnswer(m_controls[row], value), forGood, true);
}

} // namespace board
