#pragma once

#include "grammar/lengths.h"

namespace Svg {

/// A length that "calc()" works out (CSS Values 3 §8.1): sums of percentages, font sizes and user units. Nothing
/// for what breaks the grammar or mixes other units with them.
std::optional<Length> parseCalculation(QStringView text);

} // namespace Svg
