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
    /// One of Qt's dash patterns, or none of them for the dashes of the style.
    std::optional<Qt::PenStyle> lineStyle;
    /// Scale of the style's dashes; 0 for none.
    double dashScale = 1;
};

/// The pen of a stroke; caps, joins and dashes are the style's. `Qt::NoPen` when there is nothing to paint with or
/// when the width is no positive number, which to a painter would mean one pixel.
QPen strokePen(const ComputedStyle &style, const Stroke &stroke);

} // namespace Svg
