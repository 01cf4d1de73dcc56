// Adding, removing and copying nodes of a document.

#include "document/document.h"

#include "grammar/inputlimits.h"

namespace Svg {

namespace {

int depthOf(const Tree &tree, NodeIndex index)
{
    int depth = 0;
    for (NodeIndex at = index; at != noNode; at = tree.node(at).parent)
        ++depth;
    return depth;
}

int heightOf(const Tree &tree, NodeIndex top)
{
    int highest = 1;
    int level = 1;
    NodeIndex at = top;
    for (;;) {
        if (tree.node(at).firstChild != noNode) {
            at = tree.node(at).firstChild;
            highest = qMax(highest, ++level);
            continue;
        }
        while (at != top && tree.node(at).next == noNode) {
            at = tree.node(at).parent;
            --level;
        }
        if (at == top)
            return highest;
        at = tree.node(at).next;
    }
}

} // namespace

NodeIndex Document::copySubtree(NodeIndex source)
{
    settle();
    const int before = m_tree.size();
    const NodeIndex top = m_tree.copySubtree(source);
    if (m_tree.size() > before)
        m_facts.resize(m_tree.size());
    // Both walks have document order, so the copies meet their originals.
    NodeIndex original = source;
    for (NodeIndex at = top; at != noNode; at = m_tree.following(at, top)) {
        m_facts[at].reset();
        if (!m_overrides.isEmpty()) {
            m_overrides.resize(m_tree.size());
            m_overrides[at] = m_overrides.at(original);
        }
        original = m_tree.following(original, source);
    }
    m_changed = true;
    return top;
}

void Document::discardSubtree(NodeIndex top)
{
    m_tree.discardSubtree(top);
}

bool Document::canAppend(NodeIndex parent, NodeIndex child) const
{
    if (child == rootNode || m_tree.isWithin(parent, child))
        return false;
    return depthOf(m_tree, parent) + heightOf(m_tree, child) <= Limits::depth;
}

void Document::append(NodeIndex parent, NodeIndex child, const QString &id)
{
    settle();
    m_tree.unlink(child);
    m_tree.link(parent, child);
    m_tree.edit(child).attributes.set(AttributeId::Id, id);
    m_tree.forgetIds();
    structureChanged();
}

void Document::remove(NodeIndex child)
{
    settle();
    m_tree.unlink(child);
    structureChanged();
}

} // namespace Svg
