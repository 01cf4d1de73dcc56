#pragma once

#include "resolve/facts.h"
#include "tree/tree.h"

namespace Svg {

class Resolver;

/// Cost of measuring content, for a document at a revision of its references.
struct ContentMeasuring
{
    quint32 revision = 0;
    int visits = 0;
    /// Whether facts of some element depend on its content.
    bool used = false;
    /// Whether something was not measured because the budget was used up.
    bool cut = false;
};

enum class ContentBox { Fill, Stroke };

/// Results of measuring the content of an element.
struct MeasuredContent
{
    /// In the units that the facts of the element are mapped to; null without geometry.
    QRectF bounds;
    /// Whether something inside uses the paint of the element that shows it.
    bool takesContextPaint = false;
    /// Whether there was too much of it.
    bool tooMuch = false;
};

/// Bounds of an element and everything drawn inside of it, including what it uses (SVG 2 §8.10). Content beyond the
/// limits is left out.
MeasuredContent measuredContent(const Resolver &resolver, const Tree &tree, NodeIndex top,
                                const FactsPointer &facts, ContentBox box, ContentMeasuring *measuring);

} // namespace Svg
