#pragma once

#include "resolve/facts.h"
#include "tree/tree.h"

#include <functional>

namespace Svg {

class SettledTree;

/// Visits each drawable node of a walk.
struct DrawingVisitor
{
    /// Called before a node's children; false skips them.
    std::function<bool(NodeIndex, const FactsPointer &)> enter;
    /// Called after the children of every node whose `enter` was true.
    std::function<void(NodeIndex, const FactsPointer &)> leave;
};

/// Budget of all walks of one drawing together.
struct WalkBudget
{
    /// Nodes visited through references.
    int instances = 0;
    /// Elements of their outlines.
    qint64 outlineElements = 0;
    /// Characters of their attributes.
    qint64 characters = 0;
    /// Whether something was left out.
    bool exhausted = false;
    /// A "use" nested too deeply in others; `noNode` for none.
    NodeIndex tooDeep = noNode;
};

/// Visits a node and everything drawn below it, in drawing order, with the target of each "use" in its place.
/// References to themselves and instances beyond the limit are left out. Facts of used nodes are those at the place
/// of use.
void walkDrawing(SettledTree &document, NodeIndex top, const DrawingVisitor &visitor, WalkBudget *budget = nullptr);
/// Visits the children of a node, but not the node itself, under the given facts: content drawn where another
/// element refers to it.
void walkChildren(SettledTree &document, NodeIndex holder, const FactsPointer &facts, const DrawingVisitor &visitor,
                  WalkBudget *budget);
/// Visits a node and everything drawn below it under the node's facts at some place of use.
void walkUsed(SettledTree &document, NodeIndex top, const FactsPointer &facts, const DrawingVisitor &visitor,
              WalkBudget *budget);
/// The same without `leave`.
void walkDrawing(SettledTree &document, NodeIndex top,
                 const std::function<bool(NodeIndex, const FactsPointer &)> &enter);

} // namespace Svg
