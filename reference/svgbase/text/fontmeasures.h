#pragma once

#include "properties/computedstyle.h"

#include <QtGui/QRawFont>

namespace Svg {

/// Vertical metrics of a font in user units; values below the baseline are negative.
struct FontMeasures
{
    double ascent = 0;
    double descent = 0;
    double xHeight = 0;
    double subscript = 0;
    double superscript = 0;
    /// Middle of the line, and its thickness.
    double underline = 0;
    double lineThrough = 0;
    double thickness = 0;
};

/// The metrics of the first font that a style finds.
FontMeasures fontMeasures(const ComputedStyle &style);
/// The metrics of a font in pixels of `outlineFontSize`, at a size in user units.
FontMeasures fontMeasures(const QRawFont &font, double size);
/// Units of the tables of a font per font size.
double unitsPerEm(const QRawFont &font);
/// Distance of a baseline above the alphabetic one, user units.
double baselineHeight(Baseline baseline, const FontMeasures &measures);

} // namespace Svg
