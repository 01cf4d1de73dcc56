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
    /// Whether facts of some element depend on what is inside of it.
    bool used = false;
    /// Whether something was not measured since it would have taken too much.
    bool cut = false;
};

enum class ContentBox { Fill, Stroke };

/// Results of measuring the content of an element.
struct MeasuredContent
{
    /// In the units that the facts of the element are mapped to; null without geometry.
    QRectF bounds;
    /// Whether something inside is painted as whatever uses it.
    bool takesContextPaint = false;
    /// Whether there was too much of it.
    bool tooMuch = false;
};

/// Bounds of an element and all that is drawn inside of it, what it uses included (SVG 2 §8.10). Whatever is too
/// much is left out.
MeasuredContent measuredContent(const Resolver &resolver, const Tree &tree, NodeIndex top,
                                const FactsPointer &facts, ContentBox box, ContentMeasuring *measuring);

} // namespace Svg
