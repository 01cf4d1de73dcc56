#include "document/writer.h"

#include "document/documentprivate.h"
#include "document/overridetext.h"
#include "document/xmltext.h"
#include "grammar/numbers.h"

namespace Svg {

namespace {

const QLatin1String svgNamespace("http://www.w3.org/2000/svg");
const QLatin1String xlinkNamespace("http://www.w3.org/1999/xlink");
const QLatin1String declarationStart("xmlns");

bool isNamespaceDeclaration(const QString &name)
{
    return name == declarationStart || name.startsWith(QLatin1String("xmlns:"));
}

QString prefixOf(const QString &name)
{
    return name.left(qMax(0, name.indexOf(QLatin1Char(':'))));
}

bool isWritableDeclaration(const Attribute &attribute)
{
    const QString prefix = attribute.name.mid(declarationStart.size() + 1);
    const bool reserved = prefix == QLatin1String("xml") || prefix == declarationStart;
    return attribute.name == declarationStart || (!reserved && !attribute.value.isEmpty());
}

QString viewBoxText(const QRectF &box)
{
    const QStringList numbers{numberText(box.x()), numberText(box.y()), numberText(box.width()),
                              numberText(box.height())};
    return numbers.join(QLatin1Char(' '));
}

class Writer
{
public:
    explicit Writer(DocumentPrivate &document)
        : m_document(document)
        , m_tree(document.content.tree())
    {
    }

    QByteArray write();

private:
    void open(NodeIndex index);
    void close(NodeIndex index);
    void writeAttributes(NodeIndex index);
    void writeRootAttributes(const Node &root);
    void writeStyle(NodeIndex index);
    void writeContents(const Node &node);
    void declarePrefixes(const Attributes &attributes);
    bool isDeclared(const QString &name) const;
    NodeIndex styledNode(NodeIndex index) const;
    bool isInText(NodeIndex index) const;
    bool isWritten(const Attribute &attribute, NodeIndex index) const;

    DocumentPrivate &m_document;
    const Tree &m_tree;
    XmlText m_xml;
    PaintDefinitions m_paints{m_tree};
    /// Declared anywhere so far; attributes with the prefix of a removed declaration are removed with it.
    QStringList m_prefixes{QStringLiteral("xml"), QStringLiteral("xlink")};
};

bool Writer::isDeclared(const QString &name) const
{
    const QString prefix = prefixOf(name);
    return prefix.isEmpty() || m_prefixes.contains(prefix);
}

void Writer::declarePrefixes(const Attributes &attributes)
{
    for (const Attribute &attribute : attributes)
        if (attribute.name.startsWith(QLatin1String("xmlns:")) && isWritableDeclaration(attribute))
            m_prefixes.append(attribute.name.mid(declarationStart.size() + 1));
}

bool Writer::isInText(NodeIndex index) const
{
    const ElementKind kind = m_tree.node(index).kind;
    if (kind == ElementKind::Characters)
        return true;
    const NodeIndex parent = m_tree.node(index).parent;
    return parent != noNode &&
           (m_tree.node(parent).kind == ElementKind::Text || isTextPart(m_tree.node(parent).kind));
}

// Document-wide styling of a text applies to its parts, too.
NodeIndex Writer::styledNode(NodeIndex index) const
{
    NodeIndex at = index;
    while (isTextPart(m_tree.node(at).kind) && m_tree.node(at).parent != noNode)
        at = m_tree.node(at).parent;
    return at;
}

void Writer::writeStyle(NodeIndex index)
{
    QString style = m_tree.node(index).attributes.value(AttributeId::Style);
    const StyleOverride *override = m_document.content.styleOverride(styledNode(index));
    if (override) {
        const FactsPointer facts = m_document.content.facts(index);
        const QString added = overrideText(*override, *facts->style, &m_paints);
        style += (style.isEmpty() ? QString() : QStringLiteral(";")) + added;
    }
    if (!style.isEmpty())
        m_xml.attribute(QStringLiteral("style"), style);
}

bool Writer::isWritten(const Attribute &attribute, NodeIndex index) const
{
    if (attribute.id == AttributeId::Style)
        return false;
    if (attribute.id != AttributeId::Unknown) {
        const bool rootBox = index == rootNode && attribute.id == AttributeId::ViewBox;
        return attributeName(attribute.id).size() > 0 && !rootBox;
    }
    if (!isXmlName(attribute.name))
        return false;
    if (isNamespaceDeclaration(attribute.name)) {
        const bool atRoot = index == rootNode &&
                            (attribute.name == declarationStart || attribute.name == QLatin1String("xmlns:xlink"));
        return !atRoot && isWritableDeclaration(attribute);
    }
    return isDeclared(attribute.name);
}

void Writer::writeRootAttributes(const Node &root)
{
    const bool prefixed = !prefixOf(qualifiedName(root)).isEmpty();
    const QString space = prefixed ? root.attributes.value(declarationStart) : QString(svgNamespace);
    if (!space.isEmpty())
        m_xml.attribute(declarationStart, space);
    m_xml.attribute(QStringLiteral("xmlns:xlink"), xlinkNamespace);
    const QRectF box = m_document.viewBox;
    if (!box.isNull() && !m_document.viewBoxMeasured)
        m_xml.attribute(attributeName(AttributeId::ViewBox), viewBoxText(box));
    else if (root.attributes.contains(AttributeId::ViewBox))
        m_xml.attribute(attributeName(AttributeId::ViewBox), root.attributes.value(AttributeId::ViewBox));
}

void Writer::writeAttributes(NodeIndex index)
{
    const Node &node = m_tree.node(index);
    declarePrefixes(node.attributes);
    if (index == rootNode)
        writeRootAttributes(node);
    for (const Attribute &attribute : node.attributes) {
        if (!isWritten(attribute, index))
            continue;
        const QString name =
            attribute.id == AttributeId::Unknown ? attribute.name : QString(attributeName(attribute.id));
        m_xml.attribute(name, attribute.value.text());
    }
    writeStyle(index);
}

void Writer::writeContents(const Node &node)
{
    if (node.kind == ElementKind::Characters || node.kind == ElementKind::Description ||
        node.kind == ElementKind::Style)
        m_xml.characters(node.text);
}

void Writer::open(NodeIndex index)
{
    const Node &node = m_tree.node(index);
    if (node.kind == ElementKind::Characters) {
        writeContents(node);
        return;
    }
    m_xml.openTag(qualifiedName(node));
    writeAttributes(index);
    m_xml.closeTag();
    writeContents(node);
    if (node.firstChild != noNode && node.kind != ElementKind::Text && !isInText(index))
        m_xml.newLine();
}

void Writer::close(NodeIndex index)
{
    const Node &node = m_tree.node(index);
    if (node.kind == ElementKind::Characters)
        return;
    m_xml.endTag(qualifiedName(node));
    if (!isInText(index))
        m_xml.newLine();
}

QByteArray Writer::write()
{
    NodeIndex at = rootNode;
    open(at);
    for (;;) {
        const Node &node = m_tree.node(at);
        if (node.firstChild != noNode) {
            at = node.firstChild;
            open(at);
            continue;
        }
        while (at != rootNode && m_tree.node(at).next == noNode) {
            close(at);
            at = m_tree.node(at).parent;
        }
        if (at == rootNode)
            break;
        close(at);
        at = m_tree.node(at).next;
        open(at);
    }
    m_paints.write(&m_xml);
    close(rootNode);
    return m_xml.bytes();
}

} // namespace

QByteArray documentText(DocumentPrivate &document)
{
    document.content.settle();
    return Writer(document).write();
}

} // namespace Svg
