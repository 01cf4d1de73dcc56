#pragma once

#include <QtCore/QStringView>
#include <QtGui/QColor>

#include <optional>

namespace Svg {

/// A colour: #rgb, #rgba, #rrggbb, #rrggbbaa, rgb(), rgba(), hsl(), hsla(), a colour name of SVG 1.1 §4.4 or
/// "transparent". "currentColor" and "none" are no colours; a paint knows them.
std::optional<QColor> parseColor(QStringView text);
/// An opacity, a number or a percentage, held between 0 and 1.
std::optional<double> parseOpacity(QStringView text);

} // namespace Svg
