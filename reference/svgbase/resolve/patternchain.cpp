#include "resolve/patternchain.h"

#include "grammar/inputlimits.h"
#include "grammar/viewboxes.h"
#include "style/cascade.h"
#include "tree/references.h"

#include <algorithm>

namespace Svg {

// A chain that returns to one of its own patterns ends there.
PatternChain::PatternChain(const Tree &tree, NodeIndex pattern)
    : m_tree(tree)
{
    NodeIndex at = pattern;
    while (at != noNode && tree.node(at).kind == ElementKind::Pattern && !m_nodes.contains(at) &&
           m_nodes.size() < Limits::gradientReferences) {
        m_nodes.append(at);
        at = tree.findId(hrefTarget(tree.node(at).attributes));
    }
}

AttributeValue PatternChain::held(const QString &name) const
{
    for (const NodeIndex index : m_nodes)
        if (m_tree.node(index).attributes.contains(name))
            return m_tree.node(index).attributes.held(name);
    return AttributeValue();
}

ServerTransform PatternChain::transform() const
{
    ServerTransform result;
    for (const NodeIndex index : m_nodes) {
        const Node &node = m_tree.node(index);
        const ServerTransform own = serverTransform(node, styleInTree(m_tree, index),
                                                    node.attributes.held(QStringLiteral("patternTransform")));
        if (result.transform.isEmpty())
            result.transform = own.transform;
        if (result.origin.isEmpty())
            result.origin = own.origin;
    }
    return result;
}

NodeIndex PatternChain::holder() const
{
    const auto hasContent = [this](NodeIndex index) { return m_tree.node(index).firstChild != noNode; };
    const auto found = std::find_if(m_nodes.begin(), m_nodes.end(), hasContent);
    return found == m_nodes.end() ? noNode : *found;
}

bool PatternChain::isTileOfBounds() const
{
    return held(QStringLiteral("patternUnits")).text() != QLatin1String("userSpaceOnUse");
}

bool PatternChain::isContentOfBounds() const
{
    return held(QStringLiteral("patternContentUnits")).text() == QLatin1String("objectBoundingBox");
}

// A view box replaces the units of the content.
bool needsBounds(const PatternChain &chain)
{
    return chain.isTileOfBounds() ||
           (chain.isContentOfBounds() && !viewBoxOf(chain.held(QStringLiteral("viewBox"))));
}

} // namespace Svg
