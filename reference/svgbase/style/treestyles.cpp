#include "style/treestyles.h"

#include "style/cascade.h"

namespace Svg {

namespace {

/// Most styles that are kept at a time.
constexpr int mostKnown = 5000;

} // namespace

ComputedStyle TreeStyles::styleOf(const Tree &tree, NodeIndex element)
{
    return cascade(tree, element, {around(tree, tree.node(element).parent), QSizeF()});
}

// From the nearest element with a known style down to the requested one.
ComputedStyle TreeStyles::around(const Tree &tree, NodeIndex element)
{
    QVarLengthArray<NodeIndex, 16> unknown;
    NodeIndex at = element;
    for (; at != noNode && !m_known.contains(at); at = tree.node(at).parent)
        unknown.append(at);
    ComputedStyle style = at == noNode ? ComputedStyle() : m_known.value(at);
    if (m_known.size() + unknown.size() > mostKnown)
        m_known.clear();
    for (int i = unknown.size() - 1; i >= 0; --i) {
        const ComputedStyle parent = style;
        style = cascade(tree, unknown[i], {parent, QSizeF()});
        m_known.insert(unknown[i], style);
    }
    return style;
}

} // namespace Svg
