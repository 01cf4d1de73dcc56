#pragma once

#include "panels/settings/settingjson.h"

namespace board {

struct CommonSetting
{
    SettingControl control; ///< of the first object, with the numbers that all of them take
    bool isMixed = false;   ///< the objects have different values
};

/// The controls that all of several panels have: same id, same kind, same entries. In the order of the first.
QVector<CommonSetting> commonSettings(const QVector<QVector<SettingControl>> &panels);

} // namespace board
