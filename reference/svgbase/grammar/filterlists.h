#pragma once

#include "grammar/lengths.h"

#include <QtCore/QVector>
#include <QtGui/QColor>

#include <optional>

namespace Svg {

/// One item of a "filter" property (Filter Effects 1 §5).
struct FilterFunction
{
    enum Kind {
        Reference,
        Blur,
        Brightness,
        Contrast,
        DropShadow,
        Grayscale,
        HueRotate,
        Invert,
        Opacity,
        Saturate,
        Sepia
    };
    Kind kind = Reference;
    /// Of a reference.
    QString id;
    /// A share, or degrees for a turn of the hue.
    double amount = 1;
    /// Of a blur: its standard deviation alone. Of a shadow: dx, dy and standard deviation.
    Length lengths[3];
    /// Of a shadow; invalid for the text colour.
    QColor color;
};

/// Whether lengths and angles that are not 0 need their units, as in a style sheet, or are user units and degrees
/// without them, as in a presentation attribute (SVG 1.1 §4.2).
enum class FilterUnits : quint8 { Required, Optional };

/// A list of filter functions and references; nothing when the text is none.
std::optional<QVector<FilterFunction>> parseFilterList(QStringView text, FilterUnits units);

} // namespace Svg
