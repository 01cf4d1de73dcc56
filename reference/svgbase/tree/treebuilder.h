#pragma once

#include "grammar/inputlimits.h"
#include "tree/message.h"
#include "tree/tree.h"
#include "tree/xmlevents.h"

namespace Svg {

/// Builds a tree from the events of an XML reader, within the limits.
class TreeBuilder
{
public:
    TreeBuilder(Tree *tree, Messages *messages)
        : m_tree(tree)
        , m_messages(messages)
    {
    }

    void startElement(const XmlElement &element, XmlPlace place);
    void endElement();
    void characters(QStringView text, bool cdata, XmlPlace place);

    /// Reason why the text can't be used; empty while it can.
    const Problem &refusal() const { return m_refusal; }
    /// Whether the rest of the text is ignored; the tree so far is valid.
    bool hasEnded() const { return m_ended; }

private:
    void startOpen(const XmlElement &element, XmlPlace place);
    bool isLeftOut(const XmlElement &element, XmlPlace place);
    void refuse(Message::Code code, const QString &why) { m_refusal = {code, why}; }
    void endAtNamespaces(const XmlElement &element, XmlPlace place);
    ElementKind kindOfElement(const XmlElement &element, XmlPlace place);
    bool isInText() const;
    QStringView takeCharacters(QStringView text);
    NodeIndex add(Node &node, XmlPlace place);

    Tree *m_tree;
    Messages *m_messages;
    Problem m_refusal;
    bool m_ended = false;
    /// Open elements, without those that are left out.
    QVector<NodeIndex> m_open;
    /// Number of namespace declarations of each open element.
    QVector<int> m_openNamespaces;
    int m_namespaces = 0;
    int m_textPaths = 0;
    int m_trefs = 0;
    int m_fontFaces = 0;
    /// Number of open elements that are left out, all inside the outermost one.
    int m_leftOut = 0;
    int m_stops = 0;
    bool m_withoutNamespace = false;
    int m_charactersLeft = Limits::textCharacters;
    qint64 m_attributeCharactersLeft = Limits::attributeCharacters;
};

} // namespace Svg
