#pragma once

#include "scene/buildcontext.h"
#include "scene/pattern.h"

namespace Svg {

/// The element that a pattern paints.
struct PatternTarget
{
    /// Bounds of the painted geometry without its stroke, user units.
    QRectF bounds;
    QSizeF viewport;
    /// Of the fill or the stroke.
    double opacity = 1;
};

/// A pattern that fills its target (SVG 2 §14.3). Null when it paints nothing: without content, without a size,
/// relative to bounds without an area, or inside itself.
PatternPointer buildPattern(BuildContext &context, NodeIndex pattern, const PatternTarget &target);

} // namespace Svg
