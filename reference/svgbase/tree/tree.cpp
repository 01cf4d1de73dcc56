#include "tree/tree.h"

namespace Svg {

QString qualifiedName(const Node &node)
{
    return node.name.isEmpty() ? QString(elementName(node.kind)) : node.name;
}

QString localName(const Node &node)
{
    const QString name = qualifiedName(node);
    return name.mid(name.indexOf(QLatin1Char(':')) + 1);
}

bool hasLocalName(const Node &node, const QString &name)
{
    if (node.name.isEmpty())
        return name == elementName(node.kind);
    // Most names differ at their ends, so compare these first; finding the prefix takes time in proportion to the
    // length.
    if (!node.name.endsWith(name))
        return false;
    const int prefix = node.name.size() - name.size();
    return prefix == 0 ? !name.contains(QLatin1Char(':')) : node.name.indexOf(QLatin1Char(':')) == prefix - 1;
}

NodeIndex Tree::place(const NodePointer &node)
{
    m_hasStyleSheets = m_hasStyleSheets || node->kind == ElementKind::Style;
    if (m_free.isEmpty()) {
        m_nodes.append(node);
        return m_nodes.size() - 1;
    }
    const NodeIndex index = m_free.takeLast();
    m_nodes[index] = node;
    return index;
}

NodeIndex Tree::add(const Node &node)
{
    if (node.kind == ElementKind::TextPath || node.kind == ElementKind::Tref)
        m_textReferences = true;
    m_hasFonts = m_hasFonts || isFontPart(node.kind);
    return place(NodePointer(new Node(node)));
}

void Tree::link(NodeIndex parent, NodeIndex child)
{
    Node &above = edit(parent);
    Node &added = edit(child);
    added.parent = parent;
    added.previous = above.lastChild;
    added.next = noNode;
    added.linked = true;
    if (above.lastChild != noNode)
        edit(above.lastChild).next = child;
    else
        above.firstChild = child;
    above.lastChild = child;
    forgetIds();
}

void Tree::unlink(NodeIndex child)
{
    Node &removed = edit(child);
    if (!removed.linked || removed.parent == noNode)
        return;
    Node &above = edit(removed.parent);
    if (removed.previous != noNode)
        edit(removed.previous).next = removed.next;
    else
        above.firstChild = removed.next;
    if (removed.next != noNode)
        edit(removed.next).previous = removed.previous;
    else
        above.lastChild = removed.previous;
    removed.previous = removed.next = noNode;
    removed.linked = false;
    forgetIds();
}

NodeIndex Tree::copyOne(NodeIndex source)
{
    Node copy = node(source);
    copy.firstChild = copy.lastChild = copy.previous = copy.next = noNode;
    copy.linked = false;
    return add(copy);
}

NodeIndex Tree::copySubtree(NodeIndex source)
{
    const NodeIndex top = copyOne(source);
    NodeIndex above = top;
    NodeIndex at = source;
    // Walks the source in document order; `above` is the copy of the node that holds `at`'s next child.
    for (;;) {
        if (node(at).firstChild != noNode) {
            at = node(at).firstChild;
        } else {
            while (at != source && node(at).next == noNode) {
                at = node(at).parent;
                above = node(above).parent;
            }
            if (at == source)
                return top;
            at = node(at).next;
            above = node(above).parent;
        }
        const NodeIndex copy = copyOne(at);
        link(above, copy);
        above = copy;
    }
}

void Tree::discardSubtree(NodeIndex top)
{
    QVector<NodeIndex> places;
    for (NodeIndex at = top; at != noNode; at = following(at, top))
        places.append(at);
    for (const NodeIndex index : qAsConst(places)) {
        m_nodes[index] = NodePointer(new Node);
        m_free.append(index);
    }
}

void Tree::indexIds() const
{
    m_ids.clear();
    for (NodeIndex at = rootNode; at != noNode; at = following(at, rootNode)) {
        const QString id = node(at).attributes.value(AttributeId::Id);
        if (!id.isEmpty() && !m_ids.contains(id))
            m_ids.insert(id, at);
    }
    m_idsKnown = true;
}

NodeIndex Tree::findId(const QString &id) const
{
    if (id.isEmpty() || m_nodes.isEmpty())
        return noNode;
    if (!m_idsKnown)
        indexIds();
    return m_ids.value(id, noNode);
}

bool Tree::isWithin(NodeIndex index, NodeIndex ancestor) const
{
    for (NodeIndex at = index; at != noNode; at = node(at).parent)
        if (at == ancestor)
            return true;
    return false;
}

NodeIndex Tree::following(NodeIndex index, NodeIndex top) const
{
    if (node(index).firstChild != noNode)
        return node(index).firstChild;
    return followingBeside(index, top);
}

NodeIndex Tree::followingBeside(NodeIndex index, NodeIndex top) const
{
    NodeIndex at = index;
    while (at != top) {
        if (node(at).next != noNode)
            return node(at).next;
        at = node(at).parent;
    }
    return noNode;
}

} // namespace Svg
