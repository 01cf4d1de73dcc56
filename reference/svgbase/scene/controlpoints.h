#pragma once

#include <QtCore/QString>

namespace Svg {

/// Whether an id is one of "control_1" to "control_32", without leading zeros.
bool isControlPointId(const QString &id);

} // namespace Svg
