#include "panels/settings/ownsettings.h"

#include <framework/cbaseobject.h>

#include <algorithm>

namespace board {

namespace {

const QStringList lookSettings{QStringLiteral("idLineStyle"), QStringLiteral("idOutlineColor"),
                               QStringLiteral("idFillColor")};

/// Fits into a bar, or a sentence.
bool isShort(const SettingControl &control)
{
    return control.kind != SettingControl::Text && control.kind != SettingControl::Font &&
           control.kind != SettingControl::Command;
}

bool isEmptyText(const SettingControl &control)
{
    return isOfLetters(control) && control.role == QLatin1String("text") && control.value.toString().isEmpty();
}

} // namespace

bool isOfLetters(const SettingControl &control)
{
    return control.section == QLatin1String("text");
}

bool isOwnSetting(const SettingControl &control)
{
    return !lookSettings.contains(control.id);
}

std::optional<SettingControl> firstOwnSetting(const QVector<SettingControl> &controls)
{
    const bool lacksLetters = std::any_of(controls.begin(), controls.end(), isEmptyText);
    const auto isFirst = [lacksLetters](const SettingControl &control) {
        return isOwnSetting(control) && isShort(control) && !(lacksLetters && isOfLetters(control));
    };
    const auto first = std::find_if(controls.begin(), controls.end(), isFirst);
    return first == controls.end() ? std::nullopt : std::optional<SettingControl>(*first);
}

std::optional<SettingControl> firstOwnSetting(CBaseObject &object)
{
    QString json;
    return object.GetSettingJson(json) ? firstOwnSetting(parseSettings(json)) : std::nullopt;
}

} // namespace board
