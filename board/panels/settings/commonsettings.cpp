#include "panels/settings/commonsettings.h"

#include <algorithm>

namespace board {

namespace {

const SettingControl *find(const QVector<SettingControl> &panel, const QString &id)
{
    const auto found =
        std::find_if(panel.begin(), panel.end(), [&](const SettingControl &control) { return control.id == id; });
    return found == panel.end() ? nullptr : &*found;
}

bool isAlike(const SettingControl &one, const SettingControl &other)
{
    const bool isCommand = one.kind == SettingControl::Command;
    return one.kind == other.kind && one.section == other.section && one.icons == other.icons &&
           one.texts == other.texts && one.unit == other.unit && (!isCommand || one.value == other.value);
}

/// False when one of the panels has no such control.
bool merge(CommonSetting &setting, const QVector<QVector<SettingControl>> &panels)
{
    for (const QVector<SettingControl> &panel : panels) {
        const SettingControl *other = find(panel, setting.control.id);
        if (!other || !isAlike(setting.control, *other))
            return false;
        setting.control.range = setting.control.range.common(other->range);
        setting.isMixed |= other->value != setting.control.value;
    }
    const NumberRange &range = setting.control.range;
    return setting.control.kind == SettingControl::Slider ? range.minimum < range.maximum
                                                          : range.minimum <= range.maximum;
}

} // namespace

QVector<CommonSetting> commonSettings(const QVector<QVector<SettingControl>> &panels)
{
    QVector<CommonSetting> common;
    if (panels.isEmpty())
        return common;
    for (const SettingControl &control : panels.first()) {
        CommonSetting setting{control, false};
        if (merge(setting, panels))
            common.append(setting);
    }
    return common;
}

} // namespace board
