#pragma once

#include "properties/textstyle.h"

#include <QtGui/QPainterPath>

namespace Svg {

/// A piece of a decoration line, along the x axis from the origin; user units.
struct LinePiece
{
    double length = 0;
    /// Of its middle, above the x axis.
    double height = 0;
    double thickness = 0;
    LineStyle style = LineStyle::Solid;
    /// Direction of a second line from the first: 1 down, -1 up, 0 both from the middle.
    int away = 0;
};

/// The outline of a piece (CSS Text Decoration 3 §2.2). `repetitionsLeft` counts down the dots, dashes and waves
/// that may still be drawn; a piece with more of them is drawn solid.
QPainterPath lineOutline(const LinePiece &piece, int *repetitionsLeft);

} // namespace Svg
