#pragma once

#include "grammar/colormixing.h"

#include <optional>

namespace Svg {

/// A colour written as a function: rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch() and color() (CSS Color 4
/// §4.1), with "none" for a component that is missing, any of them with components of another colour (CSS Color 5
/// §4), and color-mix(). Nothing may follow it but white space.
std::optional<QColor> functionColor(Cursor cursor, const ColorContext &context);

} // namespace Svg
