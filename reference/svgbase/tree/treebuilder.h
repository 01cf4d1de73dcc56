#pragma once

#include "inputlimits.h"
#include "tree/message.h"
#include "tree/tree.h"
#include "tree/xmlevents.h"

namespace Svg {

/// Makes a tree of what a reader of XML tells, within the limits.
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

    /// Why the text can't be used; nothing while it can.
    const Problem &refusal() const { return m_refusal; }
    /// Whether nothing more is taken; what is there already counts.
    bool hasEnded() const { return m_ended; }

private:
    void startOpen(const XmlElement &element, XmlPlace place);
    bool isLeftOut(const XmlElement &element, XmlPlace place);
    void refuse(Message::Code code, const QString &why) { m_refusal = {code, why}; }
    void endAtNamespaces(const XmlElement &element, XmlPlace place);
    ElementKind kindOfElement(const XmlElement &element, XmlPlace place);
    bool isInText() const;
    NodeIndex add(Node &node, XmlPlace place);

    Tree *m_tree;
    Messages *m_messages;
    Problem m_refusal;
    bool m_ended = false;
    /// Open elements, those that are left out aside.
    QVector<NodeIndex> m_open;
    /// How many namespace declarations each open element brought into force.
    QVector<int> m_openNamespaces;
    int m_namespaces = 0;
    int m_textPaths = 0;
    int m_trefs = 0;
    int m_fontFaces = 0;
    /// Open elements that are left out, all of them inside the outermost one.
    int m_leftOut = 0;
    int m_stops = 0;
    bool m_withoutNamespace = false;
    int m_charactersLeft = Limits::textCharacters;
    qint64 m_attributeCharactersLeft = Limits::attributeCharacters;
};

} // namespace Svg
