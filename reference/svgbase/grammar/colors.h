#pragma once

#include "grammar/colormixing.h"

#include <QtCore/QStringView>
#include <QtGui/QColor>

#include <optional>

namespace Svg {

/// A colour: #rgb, #rgba, #rrggbb, #rrggbbaa, a function of CSS Color 4 §4.1, one that begins with another colour
/// or mixes two (CSS Color 5 §2, §4), a colour name or "transparent". "currentColor" and "none" are no colours; a
/// paint knows them.
std::optional<QColor> parseColor(QStringView text, const ColorContext &context = {});
/// An opacity, a number or a percentage, held between 0 and 1.
std::optional<double> parseOpacity(QStringView text);

} // namespace Svg
