#pragma once

#include <QtCore/QLatin1String>
#include <QtGui/QColor>

#include <optional>

namespace Svg {

/// Three components of a colour; their meaning and range depend on the space.
struct ColorComponents
{
    double a = 0;
    double b = 0;
    double c = 0;
};

/// Conversions of colours from spaces of CSS Color 4 to sRGB, each component clamped to 0 to 1.
///
/// Hue in degrees, saturation and lightness from 0 to 1 (§7).
QColor colorOfHsl(const ColorComponents &hueSaturationLightness);
/// Hue in degrees, whiteness and blackness from 0 to 1 (§8).
QColor colorOfHwb(const ColorComponents &hueWhiteBlack);
/// Lightness from 0 to 100, a and b about ±125 (§9.3).
QColor colorOfLab(const ColorComponents &lab);
/// Lightness from 0 to 1, a and b about ±0.4 (§9.4).
QColor colorOfOklab(const ColorComponents &lab);
/// A space of color() (§10), components from 0 to 1; no value for an unknown name.
std::optional<QColor> colorOfSpace(const QString &space, const ColorComponents &components);

/// A colour of any space of functions and mixing: those of color(), "hsl", "hwb", "lab", "lch", "oklab" and
/// "oklch", the shares of the first two from 0 to 1. No value for an unknown name.
std::optional<QColor> colorIn(const QString &space, const ColorComponents &components);
/// The components of a colour in such a space. The hue of a grey is NaN (CSS Color 4 §12.2).
std::optional<ColorComponents> componentsIn(const QString &space, const QColor &color);

/// Lightness, chroma and hue in degrees as lightness, a and b (§9.3).
ColorComponents rectangular(const ColorComponents &lightnessChromaHue);

} // namespace Svg
