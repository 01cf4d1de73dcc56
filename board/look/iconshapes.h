#pragma once

#include "look/icons.h"

#include <QtGui/QPainterPath>

namespace board {

/// A pictogram on a square of 24 × 24 units.
struct IconShape
{
    QPainterPath lines;  ///< stroked
    QPainterPath areas;  ///< filled with the text colour
    QPainterPath shades; ///< filled with a pale text colour
};

/// Side of the square that the paths are drawn on.
constexpr double iconGrid = 24;

IconShape iconShape(Icon which);

} // namespace board
