#pragma once

#include <QtCore/qglobal.h>

namespace Svg {

/// Values of "mix-blend-mode" (Compositing 1 §5, and the operator that Compositing 2 adds). Painters know all but
/// the four from `Hue` to `Luminosity`.
enum class BlendMode : quint8 {
    Normal,
    Multiply,
    Screen,
    Overlay,
    Darken,
    Lighten,
    ColorDodge,
    ColorBurn,
    HardLight,
    SoftLight,
    Difference,
    Exclusion,
    Hue,
    Saturation,
    Color,
    Luminosity,
    PlusLighter
};

} // namespace Svg
