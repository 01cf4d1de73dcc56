#pragma once

#include "properties/property.h"
#include "style/stylecache.h"
#include "tree/tree.h"

namespace Svg {

/// A value that its property does not accept.
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
    /// Whether some rules were skipped because finding all of them would have taken too long.
    bool rulesLeftOut = false;
    /// Whether it declares more custom properties than its share.
    bool propertiesLeftOut = false;
    /// Whether the text substituted for "var()" in its values exceeded the limit.
    bool substitutesLeftOut = false;
    /// Whether its decoration would be one group too many around a text.
    bool linesLeftOut = false;
};

/// The style of an element: its parent's, its presentation attributes, the rules of style sheets, its style
/// attribute and important declarations, in increasing order of rank (CSS 2.1 §6.4). `notes`, when given, receives
/// the declarations without effect.
ComputedStyle cascade(const Tree &tree, NodeIndex element, const PropertyContext &context,
                      CascadeNotes *notes = nullptr);

/// The same, shared with the parent or with other elements that have the same declarations.
StylePointer sharedCascade(const Tree &tree, NodeIndex element, const StylePointer &parent, const QSizeF &viewport,
                           StyleCache *cache, CascadeNotes *notes = nullptr);

/// The style of an element at its place in the tree, regardless of "use" elements. Percentages count as 0.
ComputedStyle styleInTree(const Tree &tree, NodeIndex element);

/// The value of an attribute, or of its property in the style, for as long as neither changes.
const AttributeValue &styledAttribute(const Attributes &attributes, const QVector<Attribute> &styled,
                                      AttributeId id);
inline const AttributeValue &styledAttribute(const Node &node, const ComputedStyle &style, AttributeId id)
{
    return styledAttribute(node.attributes, style.attributes, id);
}

} // namespace Svg
