#pragma once

#include <QtCore/QStringView>
#include <QtGui/QColor>

#include <optional>

namespace Svg {

/// A colour: #rgb, #rgba, #rrggbb, #rrggbbaa, a function of CSS Color 4 §4.1, a colour name of its §6.1 or
/// "transparent". "currentColor" and "none" are no colours; a paint knows them.
std::optional<QColor> parseColor(QStringView text);
/// An opacity, a number or a percentage, held between 0 and 1.
std::optional<double> parseOpacity(QStringView text);

} // namespace Svg
