#pragma once

#include "scene/buildcontext.h"

namespace Svg {

/// Facts about an element that its markers need.
struct MarkedElement
{
    NodeIndex node = noNode;
    FactsPointer facts;
    /// As painted, with document-wide styling; user units.
    double strokeWidth = 1;
    ContextPaint fill;
    ContextPaint stroke;
};

/// Appends the markers of an element at its vertices (SVG 2 §13.7).
void appendMarkers(BuildContext &context, const MarkedElement &element, DisplayItems *items);

} // namespace Svg
