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
    /// A share, or degrees for a hue rotation.
    double amount = 1;
    /// Of a blur: its standard deviation alone. Of a shadow: dx, dy and standard deviation.
    Length lengths[3];
    /// Of a shadow; invalid for the text colour.
    QColor color;
};

/// Whether lengths and angles other than 0 need units, as in a style sheet, or default to user units and degrees,
/// as in a presentation attribute (SVG 1.1 §4.2).
enum class FilterUnits : quint8 { Required, Optional };

/// A list of filter functions and references; no value for other text.
std::optional<QVector<FilterFunction>> parseFilterList(QStringView text, FilterUnits units);

} // namespace Svg
