#pragma once

#include "properties/computedstyle.h"

#include <QtGui/QPen>

#include <optional>

namespace Svg {

/// The stroke of an element, which document-wide styling may replace.
struct Stroke
{
    QBrush paint;
    /// User units.
    double width = 0;
    /// One of Qt's dash patterns, or none for the dashes of the style.
    std::optional<Qt::PenStyle> lineStyle;
    /// Scale of the style's dashes; 0 for none.
    double dashScale = 1;
};

/// The pen of a stroke; caps, joins and dashes are the style's. `Qt::NoPen` without paint or when the width is not
/// a positive number, which painters take for one pixel.
QPen strokePen(const ComputedStyle &style, const Stroke &stroke);

} // namespace Svg
