#pragma once

#include "resolve/facts.h"
#include "tree/tree.h"

#include <functional>

namespace Svg {

class SettledTree;

/// Visits each drawable node of a walk.
struct DrawingVisitor
{
    /// Called before a node's children; false leaves them out.
    std::function<bool(NodeIndex, const FactsPointer &)> enter;
    /// Called after the children of every node whose `enter` was true.
    std::function<void(NodeIndex, const FactsPointer &)> leave;
};

/// Budget of all walks of one drawing together.
struct WalkBudget
{
    /// Nodes that were visited through references.
    int instances = 0;
    /// Elements of their outlines.
    qint64 outlineElements = 0;
    /// Characters of their attributes.
    qint64 characters = 0;
    /// Whether something was left out.
    bool exhausted = false;
    /// A "use" that was too deep in others; `noNode` for none.
    NodeIndex tooDeep = noNode;
};

/// Visits a node and all that is drawn below it, in drawing order, with what each "use" refers to in its place.
/// References to themselves and more instances than the limit are left out. Facts of used nodes are those of the
/// place where they are used.
void walkDrawing(SettledTree &document, NodeIndex top, const DrawingVisitor &visitor, WalkBudget *budget = nullptr);
/// Visits the children of a node, which is not visited itself, under the given facts: content that is drawn where
/// another element refers to it.
void walkChildren(SettledTree &document, NodeIndex holder, const FactsPointer &facts, const DrawingVisitor &visitor,
                  WalkBudget *budget);
/// Visits a node and all that is drawn below it under the facts of its own at some place of use.
void walkUsed(SettledTree &document, NodeIndex top, const FactsPointer &facts, const DrawingVisitor &visitor,
              WalkBudget *budget);
/// The same, where nothing is to be done on the way out.
void walkDrawing(SettledTree &document, NodeIndex top,
                 const std::function<bool(NodeIndex, const FactsPointer &)> &enter);

} // namespace Svg
