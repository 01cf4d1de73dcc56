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

/// The place of a node in its tree; it stays the same for as long as the tree lives.
using NodeIndex = int;
constexpr NodeIndex noNode = -1;
constexpr NodeIndex rootNode = 0;

/// One element of a document.
struct Node : QSharedData
{
    ElementKind kind = ElementKind::Other;
    /// Whether the node stands in its parent's list of children. Removed nodes and fresh copies keep their parent.
    bool linked = false;
    /// What the template says about document-wide styling: a paint of "none" keeps it out.
    bool takesFill = true;
    bool takesStroke = true;
    NodeIndex parent = noNode;
    NodeIndex firstChild = noNode;
    NodeIndex lastChild = noNode;
    NodeIndex previous = noNode;
    NodeIndex next = noNode;
    /// Where its start tag ends in the text; for `Style` nodes, where the style sheet begins.
    int line = 0;
    int column = 0;
    Attributes attributes;
    /// Characters of `Characters`, `Description` and `Style` nodes.
    QString text;
    /// As the text has it, prefix included, where that is not the name of the kind.
    QString name;
};

/// The name of an element as its text has it; empty for `Characters`.
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
    /// Whether there are, or were, texts that refer to other elements for their way or their characters.
    bool hasTextReferences() const { return m_textReferences; }
    /// Whether there are, or were, fonts.
    bool hasFonts() const { return m_hasFonts; }
    const Node &node(NodeIndex index) const { return *m_nodes.at(index); }
    Node &edit(NodeIndex index) { return *m_nodes[index]; }

    /// Adds a node that is in no list of children yet.
    NodeIndex add(const Node &node);
    void link(NodeIndex parent, NodeIndex child);
    void unlink(NodeIndex child);
    /// A copy of the node and of everything below it, under the same parent but not linked.
    NodeIndex copySubtree(NodeIndex source);
    /// Forgets the contents of an unlinked subtree and keeps its places for later copies.
    void discardSubtree(NodeIndex top);

    /// What percentages of a root refer to that gives itself no size.
    const QSizeF &window() const { return m_window; }
    void setWindow(const QSizeF &size) { m_window = size; }

    /// Whether any node, linked or not, is a style sheet.
    bool hasStyleSheets() const { return m_hasStyleSheets; }
    /// The rules of the style sheets; null where there are none.
    const StyleRulesPointer &rules() const { return m_rules; }
    void setRules(const StyleRulesPointer &rules) { m_rules = rules; }

    /// The first node in document order with that id; `noNode` when there is none.
    NodeIndex findId(const QString &id) const;
    /// Makes the index of ids now, so that lookups write nothing until the tree changes.
    void settleIds() { indexIds(); }
    /// To be called whenever an "id" changed.
    void forgetIds() { m_idsKnown = false; }
    /// Whether `ancestor` is `index` or stands above it.
    bool isWithin(NodeIndex index, NodeIndex ancestor) const;
    /// The node after `index` in document order within the subtree of `top`; `noNode` at its end.
    NodeIndex following(NodeIndex index, NodeIndex top) const;
    /// The same, leaving out what is below `index`.
    NodeIndex followingBeside(NodeIndex index, NodeIndex top) const;

private:
    using NodePointer = QSharedDataPointer<Node>;
    NodeIndex place(const NodePointer &node);
    NodeIndex copyOne(NodeIndex source);
    void indexIds() const;

    QVector<NodePointer> m_nodes;
    QSizeF m_window{100, 100};
    StyleRulesPointer m_rules;
    bool m_hasStyleSheets = false;
    QVector<NodeIndex> m_free;
    mutable QHash<QString, NodeIndex> m_ids;
    mutable bool m_idsKnown = false;
    bool m_textReferences = false;
    bool m_hasFonts = false;
};

} // namespace Svg
