#pragma once

#include "resolve/patternchain.h"

#include <optional>

namespace Svg {

/// The tile of a pattern and its content, resolved for a target.
struct PatternPlace
{
    /// The tile at the origin; pattern units.
    QRectF tile;
    /// From the units of the content to pattern units; the content starts at the corner of the tile.
    QTransform toPattern;
    QSizeF contentViewport;
    /// From pattern units to those of the target.
    QTransform toTarget;
};

/// `bounds` and `viewport` are of the target, in its units. Empty for a pattern that paints nothing.
std::optional<PatternPlace> patternPlace(const PatternChain &chain, const QRectF &bounds, const QSizeF &viewport,
                                         double fontSize);

} // namespace Svg
