#pragma once

#include "grammar/colormixing.h"

#include <optional>

namespace Svg {

/// A colour written as a function: rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch() and color() (CSS Color 4
/// §4.1), with "none" for a missing component, any of them with components of another colour (CSS Color 5 §4), and
/// color-mix(). Only white space may follow.
std::optional<QColor> functionColor(Cursor cursor, const ColorContext &context);

} // namespace Svg
