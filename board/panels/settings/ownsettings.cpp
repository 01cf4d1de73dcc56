#include "panels/settings/ownsettings.h"

#include <framework/cbaseobject.h>

namespace board {

namespace {

const QStringList lookSettings{QStringLiteral("idLineStyle"), QStringLiteral("idOutlineColor"),
                               QStringLiteral("idFillColor")};

} // namespace

bool isOwnSetting(const SettingControl &control)
{
    return !lookSettings.contains(control.id);
}

bool isShort(const SettingControl &control)
{
    return control.kind != SettingControl::Text && control.kind != SettingControl::Font &&
           control.kind != SettingControl::Command;
}

std::optional<SettingControl> firstOwnSetting(CBaseObject &object)
{
    QString json;
    if (!object.GetSettingJson(json))
        return std::nullopt;
    const QVector<SettingControl> controls = parseSettings(json);
    for (const SettingControl &control : controls)
        if (isOwnSetting(control) && isShort(control))
            return control;
    return std::nullopt;
}

} // namespace board
