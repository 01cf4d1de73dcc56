#pragma once

#include "properties/computedstyle.h"
#include "tree/tree.h"

#include <QtCore/QHash>

namespace Svg {

/// Styles of elements at their place in the tree, regardless of "use" elements; percentages count as 0. Styles of
/// ancestors are kept, so that many deep elements take no longer than as many at the top.
class TreeStyles
{
public:
    ComputedStyle styleOf(const Tree &tree, NodeIndex element);
    /// Call this when styles may have changed.
    void clear() { m_known.clear(); }

private:
    ComputedStyle around(const Tree &tree, NodeIndex element);

    QHash<NodeIndex, ComputedStyle> m_known;
};

} // namespace Svg
