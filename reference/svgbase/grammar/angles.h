#pragma once

#include <QtCore/QStringView>

#include <optional>

namespace Svg {

/// Text that is one angle: a number of degrees, or one with the unit "deg", "grad", "rad" or "turn" (CSS Values 3
/// §6.1). The result is in degrees.
std::optional<double> parseAngle(QStringView text);

} // namespace Svg
