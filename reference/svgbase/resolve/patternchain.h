#pragma once

#include "resolve/servertransform.h"
#include "tree/tree.h"

namespace Svg {

/// A pattern and those it refers to, nearest first: later ones supply what earlier ones omit (SVG 1.1 §13.3).
class PatternChain
{
public:
    PatternChain(const Tree &tree, NodeIndex pattern);

    AttributeValue held(const QString &name) const;
    /// The nearest pattern that sets the attribute.
    ServerTransform transform() const;
    /// The first that has content; `noNode` when none has.
    NodeIndex holder() const;
    /// Whether its tile, and its content, are relative to the bounding box of the painted element.
    bool isTileOfBounds() const;
    bool isContentOfBounds() const;

private:
    const Tree &m_tree;
    QVector<NodeIndex> m_nodes;
};

/// Whether a pattern can't be used on bounds without area (SVG 1.1 §7.11).
bool needsBounds(const PatternChain &chain);

} // namespace Svg
