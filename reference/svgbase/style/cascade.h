#pragma once

#include "style/properties.h"
#include "tree/tree.h"

#include <QtCore/QStringList>

namespace Svg {

/// The style of an element: its parent's, its presentation attributes, the rules of style sheets, its style
/// attribute and what among these is important, in rising order of rank (CSS 2.1 §6.4). Declarations of the element
/// itself that were not accepted are reported through `rejected`, when given, by their values.
ComputedStyle cascade(const Tree &tree, NodeIndex element, const PropertyContext &context,
                      QStringList *rejected = nullptr);

/// The style of an element where it stands in the tree, whatever uses it. Percentages count as 0.
ComputedStyle styleInTree(const Tree &tree, NodeIndex element);

/// The text of an attribute, or what style says in its place.
QString styledAttribute(const Attributes &attributes, const QVector<Attribute> &styled, AttributeId id);
inline QString styledAttribute(const Node &node, const ComputedStyle &style, AttributeId id)
{
    return styledAttribute(node.attributes, style.attributes, id);
}

} // namespace Svg
