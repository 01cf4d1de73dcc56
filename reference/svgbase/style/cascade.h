#pragma once

#include "properties/property.h"
#include "style/stylecache.h"
#include "tree/tree.h"

namespace Svg {

/// A value that its property does not take.
struct RejectedValue
{
    AttributeId property;
    QString value;
};

/// Declarations without their intended effect.
struct CascadeNotes
{
    /// Rejected declarations of the element itself.
    QVector<RejectedValue> rejected;
    /// Whether not all rules were looked at, since that would have taken too long.
    bool rulesLeftOut = false;
    /// Whether it declares more custom properties than it may.
    bool propertiesLeftOut = false;
    /// Whether what takes the places of "var()" in its values got too long.
    bool substitutesLeftOut = false;
    /// Whether lines that it asks for would be one group too many around a text.
    bool linesLeftOut = false;
};

/// The style of an element: its parent's, its presentation attributes, the rules of style sheets, its style
/// attribute and what among these is important, in rising order of rank (CSS 2.1 §6.4). `notes`, when given, gets
/// what was left out.
ComputedStyle cascade(const Tree &tree, NodeIndex element, const PropertyContext &context,
                      CascadeNotes *notes = nullptr);

/// The same, shared with the parent or with other elements where the same is said of them.
StylePointer sharedCascade(const Tree &tree, NodeIndex element, const StylePointer &parent, const QSizeF &viewport,
                           StyleCache *cache, CascadeNotes *notes = nullptr);

/// The style of an element where it stands in the tree, whatever uses it. Percentages count as 0.
ComputedStyle styleInTree(const Tree &tree, NodeIndex element);

/// The value of an attribute, or what style says in its place, for as long as neither changes.
const AttributeValue &styledAttribute(const Attributes &attributes, const QVector<Attribute> &styled,
                                      AttributeId id);
inline const AttributeValue &styledAttribute(const Node &node, const ComputedStyle &style, AttributeId id)
{
    return styledAttribute(node.attributes, style.attributes, id);
}

} // namespace Svg
