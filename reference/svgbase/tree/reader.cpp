#include "tree/reader.h"

#include "inputlimits.h"
#include "tree/gunzip.h"
#include "tree/tagscanner.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTextCodec>
#include <QtCore/QXmlStreamReader>

namespace Svg {

namespace {

const QLatin1String svgNamespace("http://www.w3.org/2000/svg");
const QLatin1String xlinkNamespace("http://www.w3.org/1999/xlink");
const QLatin1String cdataStart("<![CDATA[");
const QLatin1String xmlNamespace("http://www.w3.org/XML/1998/namespace");

class TreeReader
{
public:
    TreeReader(QXmlStreamReader &xml, Tree *tree, Messages *messages)
        : m_xml(xml)
        , m_tree(tree)
        , m_messages(messages)
    {
    }

    bool read();

private:
    void startElement();
    void startOpen();
    void endElement();
    bool isLeftOut();
    void leaveOut(Message::Code code, const QString &why);
    void warn(Message::Code code, const QString &text);
    void refuse(Message::Code code, const QString &why);
    void characters();
    ElementKind kindOfElement();
    bool isInText() const;
    void readAttributes(Attributes *attributes) const;
    void readDeclarations(Attributes *attributes) const;
    void countNamespaces();
    NodeIndex add(Node &node);

    QXmlStreamReader &m_xml;
    Tree *m_tree;
    Messages *m_messages;
    /// Open elements, and how many namespace declarations each brought into force.
    QVector<NodeIndex> m_open;
    QVector<int> m_openNamespaces;
    int m_namespaces = 0;
    int m_textPaths = 0;
    /// Open elements that are left out, all of them inside the outermost one.
    int m_leftOut = 0;
    int m_stops = 0;
    Message::Code m_error = Message::NotWellFormed;
    bool m_withoutNamespace = false;
    int m_charactersLeft = Limits::textCharacters;
};

AttributeId idOf(const QXmlStreamAttribute &attribute)
{
    const QStringRef space = attribute.namespaceUri();
    if (space.isEmpty())
        return attributeId(attribute.name());
    if (space == xlinkNamespace && attribute.name() == QLatin1String("href"))
        return AttributeId::XlinkHref;
    if (space == xmlNamespace && attribute.name() == QLatin1String("space"))
        return AttributeId::XmlSpace;
    return AttributeId::Unknown;
}

void TreeReader::readAttributes(Attributes *attributes) const
{
    const QXmlStreamAttributes list = m_xml.attributes();
    attributes->reserve(list.size());
    for (const QXmlStreamAttribute &attribute : list) {
        const AttributeId id = idOf(attribute);
        const QString name = id == AttributeId::Unknown ? attribute.qualifiedName().toString() : QString();
        attributes->append({id, name, attribute.value().toString()});
    }
}

// Kept so that the document can be written back.
void TreeReader::readDeclarations(Attributes *attributes) const
{
    const QXmlStreamNamespaceDeclarations declarations = m_xml.namespaceDeclarations();
    for (const QXmlStreamNamespaceDeclaration &declaration : declarations) {
        const QString colon = declaration.prefix().isEmpty() ? QString() : QStringLiteral(":");
        const QString name = QLatin1String("xmlns") + colon + declaration.prefix().toString();
        attributes->append({AttributeId::Unknown, name, declaration.namespaceUri().toString()});
    }
}

bool TreeReader::isInText() const
{
    const ElementKind above = m_open.isEmpty() ? ElementKind::Other : m_tree->node(m_open.constLast()).kind;
    return above == ElementKind::Text || isTextPart(above);
}

ElementKind TreeReader::kindOfElement()
{
    const QStringRef space = m_xml.namespaceUri();
    // Without a namespace at its root, a document is SVG all the same.
    if (space != svgNamespace && (!space.isEmpty() || !m_withoutNamespace))
        return ElementKind::Other;
    const ElementKind kind = elementKind(m_xml.name());
    // A link inside a text is a part of it.
    if (kind == ElementKind::Group && isInText())
        return ElementKind::Tspan;
    if (kind == ElementKind::TextPath && ++m_textPaths > Limits::textPaths) {
        warn(Message::TooManyTextPaths,
             QStringLiteral("Text paths beyond %1 are left out.").arg(Limits::textPaths));
        return ElementKind::Other;
    }
    if (kind == ElementKind::LinearGradient || kind == ElementKind::RadialGradient)
        m_stops = 0;
    if (kind == ElementKind::Stop && ++m_stops > Limits::gradientStops) {
        if (m_stops == Limits::gradientStops + 1)
            warn(Message::TooManyGradientStops,
                 QStringLiteral("Stops of a gradient beyond %1 are left out.").arg(Limits::gradientStops));
        return ElementKind::Other;
    }
    return kind == ElementKind::NestedSvg && m_open.isEmpty() ? ElementKind::Document : kind;
}

void TreeReader::warn(Message::Code code, const QString &text)
{
    const QString id =
        m_xml.isStartElement() ? m_xml.attributes().value(QLatin1String("id")).toString() : QString();
    m_messages->warn(code, text, m_xml.lineNumber(), m_xml.columnNumber() + 1, id);
}

void TreeReader::refuse(Message::Code code, const QString &why)
{
    m_error = code;
    m_xml.raiseError(why);
}

// The element and all that is inside of it.
void TreeReader::leaveOut(Message::Code code, const QString &why)
{
    warn(code, why);
    m_leftOut = 1;
}

bool TreeReader::isLeftOut()
{
    if (m_xml.attributes().hasAttribute(crowdedMark))
        leaveOut(Message::TooManyAttributes,
                 QStringLiteral("An element with more than %1 attributes is left out.").arg(Limits::attributes));
    else if (m_open.size() >= Limits::depth)
        leaveOut(Message::NestedTooDeep,
                 QStringLiteral("What is nested deeper than %1 elements is left out.").arg(Limits::depth));
    else if (m_tree->size() >= Limits::elements)
        leaveOut(Message::TooManyElements,
                 QStringLiteral("Elements beyond %1 are left out.").arg(Limits::elements));
    return m_leftOut > 0;
}

NodeIndex TreeReader::add(Node &node)
{
    node.line = int(m_xml.lineNumber());
    node.column = int(m_xml.columnNumber()) + 1;
    const NodeIndex index = m_tree->add(node);
    if (m_open.isEmpty())
        m_tree->edit(index).linked = true;
    else
        m_tree->link(m_open.constLast(), index);
    return index;
}

void TreeReader::countNamespaces()
{
    m_openNamespaces.append(m_xml.namespaceDeclarations().size());
    m_namespaces += m_openNamespaces.constLast();
}

void TreeReader::startElement()
{
    if (m_leftOut > 0) {
        ++m_leftOut;
        return;
    }
    if (m_open.isEmpty() && m_xml.attributes().hasAttribute(crowdedMark)) {
        refuse(Message::TooManyAttributes,
               QStringLiteral("The root has more than %1 attributes.").arg(Limits::attributes));
        return;
    }
    if (!isLeftOut())
        startOpen();
}

void TreeReader::startOpen()
{
    if (m_open.isEmpty())
        m_withoutNamespace = m_xml.namespaceUri().isEmpty();
    Node node;
    node.kind = kindOfElement();
    if (m_open.isEmpty() && node.kind != ElementKind::Document) {
        refuse(Message::NoSvgRoot, QStringLiteral("The root element is not \"svg\"."));
        return;
    }
    if (m_xml.qualifiedName() != elementName(node.kind))
        node.name = m_xml.qualifiedName().toString();
    readAttributes(&node.attributes);
    readDeclarations(&node.attributes);
    m_open.append(add(node));
    countNamespaces();
    if (m_namespaces > Limits::namespaceDeclarations)
        refuse(
            Message::TooManyNamespaces,
            QStringLiteral("More than %1 namespace declarations are in force.").arg(Limits::namespaceDeclarations));
}

void TreeReader::endElement()
{
    if (m_leftOut > 0) {
        --m_leftOut;
        return;
    }
    m_open.removeLast();
    m_namespaces -= m_openNamespaces.takeLast();
}

void TreeReader::characters()
{
    if (m_open.isEmpty() || m_leftOut > 0)
        return;
    const NodeIndex holder = m_open.constLast();
    const ElementKind kind = m_tree->node(holder).kind;
    if (kind == ElementKind::Description || kind == ElementKind::Style) {
        Node &node = m_tree->edit(holder);
        if (kind == ElementKind::Style && node.text.isEmpty() && m_xml.isCDATA())
            node.column += cdataStart.size();
        node.text += m_xml.text();
    } else if (isInText() && m_tree->size() < Limits::elements) {
        Node node;
        node.kind = ElementKind::Characters;
        node.text = m_xml.text().left(m_charactersLeft).toString();
        if (node.text.size() < m_xml.text().size())
            warn(Message::TooManyCharacters,
                 QStringLiteral("Text beyond %1 characters is left out.").arg(Limits::textCharacters));
        m_charactersLeft -= node.text.size();
        add(node);
    }
}

bool TreeReader::read()
{
    while (!m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
            startElement();
            break;
        case QXmlStreamReader::EndElement:
            endElement();
            break;
        case QXmlStreamReader::Characters:
            characters();
            break;
        default:
            break;
        }
    }
    if (!m_xml.hasError())
        return true;
    m_messages->fail(m_error, m_xml.errorString(), m_xml.lineNumber(), m_xml.columnNumber() + 1);
    return false;
}

QByteArray declaredEncoding(const QByteArray &text)
{
    static const QRegularExpression pattern(QStringLiteral("encoding\\s*=\\s*[\"']([A-Za-z0-9._-]{1,40})[\"']"));
    const QString declaration = QString::fromLatin1(text.startsWith("<?xml") ? text.left(text.indexOf("?>")) : "");
    return pattern.match(declaration).captured(1).toLatin1();
}

bool isUtf16(const QByteArray &text)
{
    const bool marked = text.startsWith("\xff\xfe") || text.startsWith("\xfe\xff");
    const bool plain =
        text.size() > 1 && ((text[0] == '<' && text[1] == '\0') || (text[0] == '\0' && text[1] == '<'));
    return marked || plain;
}

bool isUtf8(const QByteArray &text)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(text.constData(), text.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

bool claimsUtf8(const QByteArray &declared)
{
    return declared.isEmpty() || declared.toLower() == "utf-8";
}

// Null for UTF-8. What is UTF-8 counts as that whatever it says: programs rewrite text and forget the declaration.
QTextCodec *foreignCodec(const QByteArray &text, const QByteArray &declared)
{
    if (isUtf16(text))
        return QTextCodec::codecForUtfText(text,
                                           QTextCodec::codecForName(text[0] == '<' ? "UTF-16LE" : "UTF-16BE"));
    if (claimsUtf8(declared) || isUtf8(text))
        return nullptr;
    return QTextCodec::codecForName(declared);
}

bool readPlainText(const QByteArray &text, Tree *tree, Messages *messages)
{
    if (text.size() > Limits::textBytes) {
        messages->fail(Message::TextTooLong,
                       QStringLiteral("The text is longer than %1 bytes.").arg(Limits::textBytes), 0, 0);
        return false;
    }
    const QByteArray declared = declaredEncoding(text);
    const QTextCodec *codec = foreignCodec(text, declared);
    const QByteArray decoded = codec ? codec->toUnicode(text).toUtf8() : text;
    const std::optional<QByteArray> thinned = withoutCrowdedTags(decoded);
    if (!thinned) {
        messages->fail(Message::TooManyAttributes,
                       QStringLiteral("A tag or an entity has more than %1 attributes.").arg(Limits::attributes), 0,
                       0);
        return false;
    }
    QXmlStreamReader xml;
    // Characters, unlike bytes, keep the reader from following the encoding that a text claims to have.
    if (codec || !claimsUtf8(declared))
        xml.addData(QString::fromUtf8(*thinned));
    else
        xml.addData(*thinned);
    return TreeReader(xml, tree, messages).read();
}

} // namespace

bool readTree(const QByteArray &text, Tree *tree, Messages *messages)
{
    if (!isGzip(text))
        return readPlainText(text, tree, messages);
    const std::optional<QByteArray> plain = gunzip(text, Limits::textBytes);
    if (plain)
        return readPlainText(*plain, tree, messages);
    const QString why = QStringLiteral("The compressed text is damaged or holds more than %1 bytes.");
    messages->fail(Message::DamagedCompression, why.arg(Limits::textBytes), 0, 0);
    return false;
}

} // namespace Svg
