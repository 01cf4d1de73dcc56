#pragma once

#include "resolve/facts.h"
#include "tree/tree.h"

#include <functional>

namespace Svg {

class Document;

/// What a walk over drawable nodes does at each of them.
struct DrawingVisitor
{
    /// Called before a node's children; false leaves them out.
    std::function<bool(NodeIndex, const FactsPointer &)> enter;
    /// Called after the children of every node whose `enter` was true.
    std::function<void(NodeIndex, const FactsPointer &)> leave;
};

/// Visits a node and all that is drawn below it, in drawing order, with what each "use" refers to in its place.
/// References to themselves and more instances than the limit are left out. Facts of used nodes are those of the
/// place where they are used.
void walkDrawing(Document &document, NodeIndex top, const DrawingVisitor &visitor);
/// The same, where nothing is to be done on the way out.
void walkDrawing(Document &document, NodeIndex top,
                 const std::function<bool(NodeIndex, const FactsPointer &)> &enter);

} // namespace Svg
