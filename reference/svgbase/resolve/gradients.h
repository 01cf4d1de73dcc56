#pragma once

#include "tree/tree.h"

#include <QtCore/QSizeF>
#include <QtGui/QBrush>

namespace Svg {

/// What a gradient is painted on.
struct GradientTarget
{
    /// Bounds of the painted geometry without its stroke, user units.
    QRectF bounds;
    QSizeF viewport;
    /// Multiplies the opacity of every stop.
    double opacity = 1;
};

/// The brush of a linear or radial gradient (SVG 1.1 §13.2) in the user units of its target. No brush when the node
/// is no gradient, has no stops, or measures itself by bounds without area.
QBrush gradientBrush(const Tree &tree, NodeIndex gradient, const GradientTarget &target);

} // namespace Svg
