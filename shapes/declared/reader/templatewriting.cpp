// The file as plain SVG for the library, and in the one form that its hash is made of.

#include <declared/reader/filereader.h>

#include <QtCore/QCryptographicHash>
#include <QtCore/QRegularExpression>
#include <QtCore/QXmlStreamWriter>

#include <algorithm>

namespace declared {

namespace {

const QString linkNamespace = QStringLiteral("http://www.w3.org/1999/xlink");
const QString xmlNamespace = QStringLiteral("http://www.w3.org/XML/1998/namespace");
constexpr int hashDigits = 32;
/// Template attributes of the kit, which files declare in another way.
const QStringList attributesOfTheKit{QStringLiteral("keeps"), QStringLiteral("fill_follows"),
                                     QStringLiteral("stroke_follows")};

void writeAttribute(QXmlStreamWriter &writer, const SourceAttribute &attribute)
{
    if (attribute.namespaceUri.isEmpty())
        writer.writeAttribute(attribute.name, attribute.value);
    else
        writer.writeAttribute(attribute.namespaceUri, attribute.name, attribute.value);
}

/// Blank space between elements is layout of the file; in texts it is drawn, as a single blank.
QString canonicalCharacters(const SourceElement &element, const QString &characters)
{
    static const QStringList texts{QStringLiteral("text"), QStringLiteral("tspan"), QStringLiteral("textPath")};
    static const QRegularExpression space(QStringLiteral("[ \\t\\r\\n]+"));
    if (element.attribute(QStringLiteral("space"), xmlNamespace))
        return characters;
    if (!texts.contains(element.name) && characters.trimmed().isEmpty())
        return {};
    return QString(characters).replace(space, QStringLiteral(" "));
}

} // namespace

/// Only the file itself is read: a link leads to another element, or holds its data.
bool FileReader::leadsOutside(const Attribute &attribute)
{
    return attribute.name == QLatin1String("href") && !attribute.value.startsWith(QLatin1Char('#')) &&
           !attribute.value.startsWith(QLatin1String("data:"));
}

bool FileReader::isScript(const Attribute &attribute)
{
    return attribute.namespaceUri.isEmpty() && attribute.name.startsWith(QLatin1String("on"));
}

bool FileReader::isWritten(const Attribute &attribute)
{
    const bool isKnown = attribute.namespaceUri.isEmpty() || attribute.namespaceUri == linkNamespace ||
                         attribute.prefix == QLatin1String("xml");
    return isKnown && !leadsOutside(attribute) && !isScript(attribute);
}

bool FileReader::isLeftOut(const Element &element) const
{
    return !isSvg(element) || element.name == QLatin1String("script") ||
           element.name == QLatin1String("foreignObject");
}

/// The "fill" or "stroke" of an element or of the groups around it; empty where none is given.
QString FileReader::paintOf(int index, const QString &paint) const
{
    for (; index >= 0; index = m_elements.at(index).parent) {
        const Element &element = m_elements.at(index);
        const Attribute *own = element.attribute(paint);
        const bool isElsewhere = element.attribute(paint, shapeNamespace) ||
                                 element.value("style").contains(paint + QLatin1Char(':')) ||
                                 element.attribute(QStringLiteral("class"));
        if (isElsewhere || own)
            return own && !isElsewhere ? own->value : QStringLiteral("declared");
    }
    return {};
}

/// The user's pen reaches what has a line, and the fill what isn't told to have none.
QStringList FileReader::keptPaints(int index) const
{
    QStringList kept = m_written.value(index).kept;
    const Element &element = m_elements.at(index);
    if (!isDrawn(element) || element.name == QLatin1String("g") || m_points.contains(index))
        return kept;
    const QString stroke = paintOf(index, QStringLiteral("stroke"));
    if ((stroke.isEmpty() || stroke == QLatin1String("none")) && !kept.contains(QStringLiteral("stroke")))
        kept.append(QStringLiteral("stroke"));
    if (paintOf(index, QStringLiteral("fill")) == QLatin1String("none") && !kept.contains(QStringLiteral("fill")))
        kept.append(QStringLiteral("fill"));
    return kept;
}

void FileReader::writeElement(QXmlStreamWriter &writer, int index) const
{
    const Element &element = m_elements.at(index);
    const TemplateElement written = m_written.value(index);
    writer.writeStartElement(written.isLetters ? QStringLiteral("path") : element.name);
    QStringList dropped = written.dropped + attributesOfTheKit;
    for (const auto &attribute : written.attributes)
        dropped.append(attribute.first);
    for (const Attribute &attribute : element.attributes)
        if (isWritten(attribute) && !dropped.contains(attribute.name))
            writeAttribute(writer, attribute);
    for (const auto &attribute : written.attributes)
        writer.writeAttribute(attribute.first, attribute.second);
    if (!written.id.isEmpty())
        writer.writeAttribute(QStringLiteral("id"), written.id);
    const QStringList kept = keptPaints(index);
    if (!kept.isEmpty())
        writer.writeAttribute(QStringLiteral("keeps"), kept.join(QLatin1Char(' ')));
    const QVector<int> drawn = drawnChildren(element);
    for (const SourceContent &content : element.contents) {
        const bool isText = content.element < 0;
        const bool isSpare = !isText && written.hasOneChild && drawn.indexOf(content.element) > 0;
        if (written.isLetters || isSpare)
            continue;
        if (isText)
            writer.writeCharacters(content.text);
        else if (!isLeftOut(m_elements.at(content.element)))
            writeElement(writer, content.element);
    }
    writer.writeEndElement();
}

QByteArray FileReader::templateText() const
{
    QByteArray text;
    QXmlStreamWriter writer(&text);
    writer.writeStartDocument();
    writer.writeDefaultNamespace(svgNamespace);
    writer.writeNamespace(linkNamespace, QStringLiteral("xlink"));
    writeElement(writer, 0);
    writer.writeEndDocument();
    return text;
}

/// The symbol in its view box, with the definitions of the file that it may refer to.
QByteArray FileReader::iconText(const Element &symbol) const
{
    QByteArray text;
    QXmlStreamWriter writer(&text);
    writer.writeStartDocument();
    writer.writeDefaultNamespace(svgNamespace);
    writer.writeNamespace(linkNamespace, QStringLiteral("xlink"));
    writer.writeStartElement(QStringLiteral("svg"));
    if (const Attribute *box = symbol.attribute(QStringLiteral("viewBox")))
        writer.writeAttribute(QStringLiteral("viewBox"), box->value);
    for (int i = 0; i < m_elements.size(); ++i)
        if (isSvg(m_elements.at(i)) && m_elements.at(i).name == QLatin1String("defs"))
            writeElement(writer, i);
    for (const SourceContent &content : symbol.contents)
        if (content.element >= 0 && !isLeftOut(m_elements.at(content.element)))
            writeElement(writer, content.element);
    writer.writeEndDocument();
    return text;
}

/// Comments, blank space around elements, the order of attributes, and what other programs have added make no
/// difference. The result declares the same shape, whatever its file is called.
void FileReader::writeCanonical(QXmlStreamWriter &writer, int index) const
{
    const Element &element = m_elements.at(index);
    const bool isOurs = element.namespaceUri == shapeNamespace;
    writer.writeStartElement(isOurs ? shapeNamespace : svgNamespace, element.name);
    QMap<QPair<QString, QString>, QString> sorted; // by namespace and name
    if (isShape(element, "about"))
        sorted.insert({QString(), QStringLiteral("id")}, m_shape.id);
    for (const Attribute &attribute : element.attributes)
        if (attribute.namespaceUri == shapeNamespace || isWritten(attribute))
            sorted.insert({attribute.namespaceUri, attribute.name}, attribute.value);
    for (auto attribute = sorted.constBegin(); attribute != sorted.constEnd(); ++attribute)
        if (attribute.key().first.isEmpty())
            writer.writeAttribute(attribute.key().second, attribute.value());
        else
            writer.writeAttribute(attribute.key().first, attribute.key().second, attribute.value());
    for (const SourceContent &content : element.contents)
        if (content.element < 0)
            writer.writeCharacters(canonicalCharacters(element, content.text));
        else if (m_elements.at(content.element).namespaceUri == shapeNamespace ||
                 !isLeftOut(m_elements.at(content.element)))
            writeCanonical(writer, content.element);
    writer.writeEndElement();
}

QByteArray FileReader::canonicalText() const
{
    QByteArray text;
    QXmlStreamWriter writer(&text);
    writer.writeDefaultNamespace(svgNamespace);
    writer.writeNamespace(shapeNamespace, QStringLiteral("shape"));
    writer.writeNamespace(linkNamespace, QStringLiteral("xlink"));
    writeCanonical(writer, 0);
    return text;
}

QString hashOf(const QByteArray &canonicalText)
{
    const QByteArray hash = QCryptographicHash::hash(canonicalText, QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex().left(hashDigits));
}

} // namespace declared
