#include "tree/treebuilder.h"

#include "grammar/inputlimits.h"
#include "tree/tagscanner.h"

#include <algorithm>

namespace Svg {

namespace {

const QLatin1String svgNamespace("http://www.w3.org/2000/svg");
const QLatin1String xlinkNamespace("http://www.w3.org/1999/xlink");
const QLatin1String xmlNamespace("http://www.w3.org/XML/1998/namespace");
const QLatin1String cdataStart("<![CDATA[");

AttributeId idOf(const XmlAttribute &attribute)
{
    if (attribute.namespaceUri.isEmpty())
        return attributeId(attribute.name);
    if (attribute.namespaceUri == xlinkNamespace && attribute.name == QLatin1String("href"))
        return AttributeId::XlinkHref;
    if (attribute.namespaceUri == xmlNamespace && attribute.name == QLatin1String("space"))
        return AttributeId::XmlSpace;
    return AttributeId::Unknown;
}

void takeAttributes(const XmlElement &element, Attributes *attributes)
{
    attributes->reserve(element.attributes.size() + element.declarations.size());
    for (const XmlAttribute &attribute : element.attributes) {
        const AttributeId id = idOf(attribute);
        const QString name = id == AttributeId::Unknown ? attribute.qualifiedName.toString() : QString();
        attributes->append({id, name, attribute.value.toString()});
    }
}

// Kept so that the document can be written back.
void takeDeclarations(const XmlElement &element, Attributes *attributes)
{
    for (const XmlDeclaration &declaration : element.declarations) {
        const QString colon = declaration.prefix.isEmpty() ? QString() : QStringLiteral(":");
        const QString name = QLatin1String("xmlns") + colon + declaration.prefix.toString();
        attributes->append({AttributeId::Unknown, name, declaration.namespaceUri.toString()});
    }
}

// By the first code unit: most of U+1F000 to U+1FBFF, of U+2600 to U+27BF, and what turns other characters into
// pictographs.
bool mayBePictograph(QChar first)
{
    const ushort unit = first.unicode();
    const bool isVariation = unit == 0xfe0f || unit == 0x20e3;
    return (unit >= 0xd83c && unit <= 0xd83e) || (unit >= 0x2600 && unit <= 0x27bf) || isVariation;
}

QString idOfElement(const XmlElement &element)
{
    for (const XmlAttribute &attribute : element.attributes)
        if (attribute.qualifiedName == QLatin1String("id"))
            return attribute.value.toString();
    return QString();
}

bool isCrowded(const XmlElement &element)
{
    return std::any_of(element.attributes.begin(), element.attributes.end(),
                       [](const XmlAttribute &attribute) { return attribute.qualifiedName == crowdedMark; });
}

// A document type may give every element far more attributes than the text has.
qint64 attributeCharacters(const XmlElement &element)
{
    qint64 characters = 0;
    for (const XmlAttribute &attribute : element.attributes)
        characters += attribute.qualifiedName.size() + attribute.value.size() + Limits::charactersOfAttribute;
    return characters;
}

} // namespace

bool TreeBuilder::isInText() const
{
    const ElementKind above = m_open.isEmpty() ? ElementKind::Other : m_tree->node(m_open.constLast()).kind;
    return above == ElementKind::Text || isTextPart(above);
}

ElementKind TreeBuilder::kindOfElement(const XmlElement &element, XmlPlace place)
{
    // A document without a namespace at its root is also SVG.
    if (element.namespaceUri != svgNamespace && (!element.namespaceUri.isEmpty() || !m_withoutNamespace))
        return ElementKind::Other;
    const ElementKind kind = elementKind(element.name);
    // A link inside a text is part of the text.
    if (kind == ElementKind::Group && isInText())
        return element.name == QLatin1String("a") ? ElementKind::Tspan : ElementKind::Other;
    if (kind == ElementKind::TextPath && ++m_textPaths > Limits::textPaths) {
        m_messages->warn(Message::TooManyTextPaths,
                         QStringLiteral("Text paths beyond %1 are left out.").arg(Limits::textPaths), place.line,
                         place.column, idOfElement(element));
        return ElementKind::Other;
    }
    if (kind == ElementKind::Tref && ++m_trefs > Limits::trefs) {
        m_messages->warn(Message::TooManyCharacters,
                         QStringLiteral("References to texts beyond %1 are left out.").arg(Limits::trefs),
                         place.line, place.column, idOfElement(element));
        return ElementKind::Other;
    }
    if (kind == ElementKind::FontFace && ++m_fontFaces > Limits::fonts) {
        m_messages->warn(Message::ListTooLong,
                         QStringLiteral("Fonts of a document beyond %1 are left out.").arg(Limits::fonts),
                         place.line, place.column, idOfElement(element));
        return ElementKind::Other;
    }
    if (kind == ElementKind::LinearGradient || kind == ElementKind::RadialGradient)
        m_stops = 0;
    if (kind == ElementKind::Stop && ++m_stops > Limits::gradientStops) {
        if (m_stops == Limits::gradientStops + 1)
            m_messages->warn(
                Message::TooManyGradientStops,
                QStringLiteral("Stops of a gradient beyond %1 are left out.").arg(Limits::gradientStops),
                place.line, place.column, idOfElement(element));
        return ElementKind::Other;
    }
    return kind == ElementKind::NestedSvg && m_open.isEmpty() ? ElementKind::Document : kind;
}

// Applies to the element and all its contents.
bool TreeBuilder::isLeftOut(const XmlElement &element, XmlPlace place)
{
    Problem problem;
    if (isCrowded(element))
        problem = {Message::TooManyAttributes,
                   QStringLiteral("An element with more than %1 attributes is left out.").arg(Limits::attributes)};
    else if (attributeCharacters(element) > m_attributeCharactersLeft)
        problem = {Message::TooManyAttributes,
                   QStringLiteral("Elements whose attributes have more than %1 characters together are left out.")
                       .arg(Limits::attributeCharacters)};
    else if (m_open.size() >= Limits::depth)
        problem = {Message::NestedTooDeep,
                   QStringLiteral("What is nested deeper than %1 elements is left out.").arg(Limits::depth)};
    else if (m_tree->size() >= Limits::elements)
        problem = {Message::TooManyElements,
                   QStringLiteral("Elements beyond %1 are left out.").arg(Limits::elements)};
    else
        return false;
    m_messages->warn(problem.code, problem.text, place.line, place.column, idOfElement(element));
    return true;
}

NodeIndex TreeBuilder::add(Node &node, XmlPlace place)
{
    node.line = int(place.line);
    node.column = int(place.column);
    const NodeIndex index = m_tree->add(node);
    if (m_open.isEmpty())
        m_tree->edit(index).linked = true;
    else
        m_tree->link(m_open.constLast(), index);
    return index;
}

void TreeBuilder::startElement(const XmlElement &element, XmlPlace place)
{
    m_openNamespaces.append(element.declarations.size());
    m_namespaces += element.declarations.size();
    if (m_namespaces > Limits::namespaceDeclarations)
        endAtNamespaces(element, place);
    else if (m_leftOut > 0)
        ++m_leftOut;
    else if (m_open.isEmpty() && isCrowded(element))
        refuse(Message::TooManyAttributes,
               QStringLiteral("The root has more than %1 attributes.").arg(Limits::attributes));
    else if (isLeftOut(element, place))
        m_leftOut = 1;
    else
        startOpen(element, place);
}

void TreeBuilder::startOpen(const XmlElement &element, XmlPlace place)
{
    if (m_open.isEmpty())
        m_withoutNamespace = element.namespaceUri.isEmpty();
    Node node;
    node.kind = kindOfElement(element, place);
    if (m_open.isEmpty() && node.kind != ElementKind::Document) {
        refuse(Message::NoSvgRoot, QStringLiteral("The root element is not \"svg\"."));
        return;
    }
    if (element.qualifiedName != elementName(node.kind))
        node.name = element.qualifiedName.toString();
    if (node.kind == ElementKind::Text)
        m_charactersLeft = qMax(0, m_charactersLeft - Limits::charactersOfText);
    m_attributeCharactersLeft -= attributeCharacters(element);
    takeAttributes(element, &node.attributes);
    takeDeclarations(element, &node.attributes);
    m_open.append(add(node, place));
}

// Continuing would take longer the more of them there are.
void TreeBuilder::endAtNamespaces(const XmlElement &element, XmlPlace place)
{
    const QString limit =
        QStringLiteral("More than %1 namespace declarations are in force").arg(Limits::namespaceDeclarations);
    if (m_open.isEmpty()) {
        refuse(Message::TooManyNamespaces, limit + QLatin1Char('.'));
        return;
    }
    m_messages->warn(Message::TooManyNamespaces, limit + QStringLiteral("; what follows is left out."), place.line,
                     place.column, idOfElement(element));
    m_ended = true;
}

void TreeBuilder::endElement()
{
    m_namespaces -= m_openNamespaces.takeLast();
    if (m_leftOut > 0)
        --m_leftOut;
    else
        m_open.removeLast();
}

void TreeBuilder::characters(QStringView text, bool cdata, XmlPlace place)
{
    if (m_open.isEmpty() || m_leftOut > 0)
        return;
    const NodeIndex holder = m_open.constLast();
    const ElementKind kind = m_tree->node(holder).kind;
    if (kind == ElementKind::Description || kind == ElementKind::Style) {
        Node &node = m_tree->edit(holder);
        if (kind == ElementKind::Style && node.text.isEmpty() && cdata)
            node.column += cdataStart.size();
        node.text.append(text.data(), int(text.size()));
    } else if (isInText() && m_tree->size() < Limits::elements) {
        Node node;
        node.kind = ElementKind::Characters;
        node.text = takeCharacters(text).toString();
        if (node.text.size() < text.size())
            m_messages->warn(Message::TooManyCharacters,
                             QStringLiteral("Text beyond %1 characters is left out.").arg(Limits::textCharacters),
                             place.line, place.column);
        add(node, place);
    }
}

// A surrogate pair is taken as a whole.
QStringView TreeBuilder::takeCharacters(QStringView text)
{
    qsizetype end = 0;
    while (end < text.size()) {
        const int length = text.at(end).isHighSurrogate() && end + 1 < text.size() ? 2 : 1;
        const int cost = length * (mayBePictograph(text.at(end)) ? Limits::charactersOfPictograph : 1);
        if (cost > m_charactersLeft)
            break;
        m_charactersLeft -= cost;
        end += length;
    }
    return text.left(end);
}

} // namespace Svg
