#pragma once

#include "grammar/cursor.h"

#include <QtGui/QColor>

#include <optional>

namespace Svg {

/// A colour written as a function: rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch() and color() (CSS Color 4
/// §4.1), with "none" for a component that is missing. Nothing may follow it but white space.
std::optional<QColor> functionColor(Cursor cursor);

} // namespace Svg
