#pragma once

#include "grammar/colormixing.h"

#include <QtCore/QStringView>
#include <QtGui/QColor>

#include <optional>

namespace Svg {

/// A colour: #rgb, #rgba, #rrggbb, #rrggbbaa, a function of CSS Color 4 §4.1, a relative or mixed colour (CSS Color
/// 5 §2, §4), a colour name or "transparent". "currentColor" and "none" are not colours but paints.
std::optional<QColor> parseColor(QStringView text, const ColorContext &context = {});
/// An opacity, a number or a percentage, clamped to 0 to 1.
std::optional<double> parseOpacity(QStringView text);

} // namespace Svg
