#pragma once

#include "properties/computedstyle.h"
#include "tree/tree.h"

#include <QtCore/QHash>

namespace Svg {

/// Styles of elements where they stand in a tree, whatever uses them; percentages count as 0. Those of the elements
/// above are kept, so that many elements deep down take no longer than as many at the top.
class TreeStyles
{
public:
    ComputedStyle styleOf(const Tree &tree, NodeIndex element);
    /// To be called when styles may be others than before.
    void clear() { m_known.clear(); }

private:
    ComputedStyle around(const Tree &tree, NodeIndex element);

    QHash<NodeIndex, ComputedStyle> m_known;
};

} // namespace Svg
