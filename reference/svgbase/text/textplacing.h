#pragma once

#include "text/textshaping.h"
#include "text/textway.h"

#include <QtGui/QTransform>

#include <memory>

namespace Svg {

/// A cluster with its place.
struct PlacedCluster
{
    TextCluster glyphs;
    /// Left end on the line, and shift across it: down, or to the right of a vertical line. User units.
    double along = 0;
    double aside = 0;
    /// Horizontal scale of its glyphs.
    double widening = 1;
    /// From the units of its outline, without baseline shift and rotation, to the text's.
    QTransform line;
    bool shown = true;
};

/// Positions the characters of a text as in SVG 2 §11.5: shaping, shifts, adjustment to a given length, absolute
/// positions, anchors, paths.
QVector<PlacedCluster> placeText(const Tree &tree, const TextContent &content, const QSizeF &viewport,
                                 const TextServices &services);

} // namespace Svg
