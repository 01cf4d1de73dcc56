#pragma once

#include <QtCore/QLatin1String>
#include <QtCore/QStringView>

#include <optional>

namespace Svg {

/// Degrees per "deg", "grad", "rad" or "turn", in any case; no value for any other unit.
std::optional<double> degreesOf(QLatin1String unit);

/// Text that is one angle: a number of degrees, or one with the unit "deg", "grad", "rad" or "turn" (CSS Values 3
/// §6.1). The result is in degrees.
std::optional<double> parseAngle(QStringView text);

} // namespace Svg
