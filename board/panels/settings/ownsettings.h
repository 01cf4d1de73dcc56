#pragma once

#include "panels/settings/settingjson.h"

#include <optional>

class CBaseObject;

namespace board {

/// Whether it is one of the shape itself. Those of pen and fill, which every shape has, are set as the look.
bool isOwnSetting(const SettingControl &control);
/// Whether it is one of a text that users write on the page.
bool isOfLetters(const SettingControl &control);
/// The one that the bar at the selection shows; none for an object without any. Letters that aren't there yet have
/// none.
std::optional<SettingControl> firstOwnSetting(const QVector<SettingControl> &controls);
/// See above.
std::optional<SettingControl> firstOwnSetting(CBaseObject &object);

} // namespace board
