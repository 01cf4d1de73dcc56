#pragma once

#include "panels/settings/settingjson.h"

#include <optional>

class CBaseObject;

namespace board {

/// Whether it is one of the shape itself. Those of pen and fill, which every shape has, are set as the look.
bool isOwnSetting(const SettingControl &control);
/// Whether it fits into a bar, or a sentence.
bool isShort(const SettingControl &control);
/// The one that the bar at the selection shows; none for an object without any.
std::optional<SettingControl> firstOwnSetting(CBaseObject &object);

} // namespace board
