#pragma once

#include "tree/attributes.h"
#include "tree/elementkinds.h"

#include <QtCore/QHash>
#include <QtCore/QSharedData>
#include <QtCore/QSizeF>

#include <memory>

namespace Svg {

class StyleRules;
using StyleRulesPointer = std::shared_ptr<const StyleRules>;

/// Index of a node in its tree; constant for the lifetime of the tree.
using NodeIndex = int;
constexpr NodeIndex noNode = -1;
constexpr NodeIndex rootNode = 0;

/// One element of a document.
struct Node : QSharedData
{
    ElementKind kind = ElementKind::Other;
    /// Whether the node is in its parent's list of children. Removed nodes and fresh copies keep their parent.
    bool linked = false;
    /// Whether document-wide styling applies: a paint of "none" in the template excludes it.
    bool takesFill = true;
    bool takesStroke = true;
    NodeIndex parent = noNode;
    NodeIndex firstChild = noNode;
    NodeIndex lastChild = noNode;
    NodeIndex previous = noNode;
    NodeIndex next = noNode;
    /// Position of the end of its start tag; for `Style` nodes, of the beginning of the style sheet.
    int line = 0;
    int column = 0;
    Attributes attributes;
    /// Characters of `Characters`, `Description` and `Style` nodes.
    QString text;
    /// As in the text, with prefix, unless it is the name of the kind.
    QString name;
};

/// The name of an element as in its text; empty for `Characters`.
QString qualifiedName(const Node &node);
/// The same without its prefix.
QString localName(const Node &node);
/// Whether that is its name without prefix.
bool hasLocalName(const Node &node, const QString &name);

/// The elements of a document, linked by index. Copies share their nodes until one of them is edited.
class Tree
{
public:
    int size() const { return m_nodes.size(); }
    /// Whether there are, or were, texts that refer to other elements for their path or their characters.
    bool hasTextReferences() const { return m_textReferences; }
    /// Whether there are, or were, fonts.
    bool hasFonts() const { return m_hasFonts; }
    const Node &node(NodeIndex index) const { return *m_nodes.at(index); }
    Node &edit(NodeIndex index) { return *m_nodes[index]; }

    /// Adds a node without linking it to a parent's list of children.
    NodeIndex add(const Node &node);
    void link(NodeIndex parent, NodeIndex child);
    void unlink(NodeIndex child);
    /// Copies the node and everything below it, under the same parent but not linked.
    NodeIndex copySubtree(NodeIndex source);
    /// Clears an unlinked subtree and keeps its indices for later copies.
    void discardSubtree(NodeIndex top);

    /// Reference size for percentages of a root without a size.
    const QSizeF &window() const { return m_window; }
    void setWindow(const QSizeF &size) { m_window = size; }

    /// Whether any node, linked or not, is a style sheet.
    bool hasStyleSheets() const { return m_hasStyleSheets; }
    /// The rules of the style sheets; null if there are none.
    const StyleRulesPointer &rules() const { return m_rules; }
    void setRules(const StyleRulesPointer &rules) { m_rules = rules; }

    /// Animated values of properties and of attributes given by style, which override all other declarations for a
    /// node; empty for most nodes.
    Attributes animatedStyle(NodeIndex index) const { return m_animatedStyles.value(index); }
    void setAnimatedStyle(NodeIndex index, const Attributes &values) { m_animatedStyles.insert(index, values); }

    /// The first node in document order with that id; `noNode` if there is none.
    NodeIndex findId(const QString &id) const;
    /// Builds the index of ids now, so that lookups don't modify anything until the tree changes.
    void settleIds() { indexIds(); }
    /// Must be called whenever an "id" has changed.
    void forgetIds() { m_idsKnown = false; }
    /// Whether `ancestor` is `index` or one of its ancestors.
    bool isWithin(NodeIndex index, NodeIndex ancestor) const;
    /// The node after `index` in document order within the subtree of `top`; `noNode` at its end.
    NodeIndex following(NodeIndex index, NodeIndex top) const;
    /// The same, skipping the descendants of `index`.
    NodeIndex followingBeside(NodeIndex index, NodeIndex top) const;

private:
    using NodePointer = QSharedDataPointer<Node>;
    NodeIndex place(const NodePointer &node);
    NodeIndex copyOne(NodeIndex source);
    void indexIds() const;

    QVector<NodePointer> m_nodes;
    QSizeF m_window{100, 100};
    StyleRulesPointer m_rules;
    QHash<NodeIndex, Attributes> m_animatedStyles;
    bool m_hasStyleSheets = false;
    QVector<NodeIndex> m_free;
    mutable QHash<QString, NodeIndex> m_ids;
    mutable bool m_idsKnown = false;
    bool m_textReferences = false;
    bool m_hasFonts = false;
};

} // namespace Svg
