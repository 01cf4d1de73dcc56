#include <declared/reader/sourcetree.h>

#include <declared/reader/filelimits.h>

#include <shapekit/tagscanner.h>

#include <QtCore/QXmlStreamReader>

namespace declared {

using shapekit::RawTag;
using shapekit::TagScanner;

namespace {

SourceElement elementOf(const QXmlStreamReader &reader, const RawTag &tag, int parent)
{
    SourceElement element;
    element.name = reader.name().toString();
    element.namespaceUri = reader.namespaceUri().toString();
    element.parent = parent;
    element.offset = tag.offset;
    const QXmlStreamAttributes attributes = reader.attributes();
    for (const QXmlStreamAttribute &attribute : attributes)
        element.attributes.append({attribute.name().toString(), attribute.prefix().toString(),
                                   attribute.namespaceUri().toString(), attribute.value().toString(),
                                   tag.offsetOf(attribute.qualifiedName().toString())});
    return element;
}

} // namespace

const SourceAttribute *SourceElement::attribute(const QString &name, const QString &namespaceUri) const
{
    for (const SourceAttribute &attribute : attributes)
        if (attribute.name == name && attribute.namespaceUri == namespaceUri)
            return &attribute;
    return nullptr;
}

QString SourceElement::value(const char *name) const
{
    const SourceAttribute *found = attribute(QLatin1String(name));
    return found ? found->value : QString();
}

bool SourceTree::fail(QVector<Message> &messages, const char *code, Place place, const QString &text) const
{
    messages.append({Message::Error, QLatin1String(code), place.line, place.column, text});
    return false;
}

bool SourceTree::read(const QByteArray &bytes, QVector<Message> &messages)
{
    m_elements.clear();
    if (bytes.size() > limits::fileBytes)
        return fail(messages, "C42", {}, QStringLiteral("the file is larger than 1 MiB"));
    m_text = QString::fromUtf8(bytes);
    // Before Qt's reader, whose cost grows with the square of an element's attributes.
    TagScanner scanner(m_text);
    RawTag tag;
    for (int count = 1; scanner.next(tag); ++count) {
        if (count > limits::elements || scanner.depth() > limits::elementDepth)
            return fail(messages, "C42", placeOf(tag.offset),
                        QStringLiteral("a file has at most 5000 elements, in at most 64 levels"));
        if (tag.attributes.size() > limits::attributesOfElement)
            return fail(messages, "C42", placeOf(tag.offset), QStringLiteral("an element has too many attributes"));
    }
    return readElements(messages);
}

bool SourceTree::readElements(QVector<Message> &messages)
{
    QXmlStreamReader reader(m_text);
    TagScanner scanner(m_text);
    RawTag tag;
    int parent = -1;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isDTD() && !reader.entityDeclarations().isEmpty())
            return fail(messages, "C45", {int(reader.lineNumber()), int(reader.columnNumber()) + 1},
                        QStringLiteral("entities are not read"));
        if (reader.isStartElement()) {
            scanner.next(tag);
            m_elements.append(elementOf(reader, tag, parent));
            const int index = m_elements.size() - 1;
            if (parent >= 0)
                m_elements[parent].contents.append(SourceContent{index, {}});
            parent = index;
        } else if (reader.isEndElement()) {
            parent = m_elements.at(parent).parent;
        } else if (reader.isCharacters() && parent >= 0) {
            m_elements[parent].contents.append(SourceContent{-1, reader.text().toString()});
        }
    }
    if (reader.hasError())
        return fail(messages, "C01", {int(reader.lineNumber()), int(reader.columnNumber()) + 1},
                    reader.errorString());
    return true;
}

Place SourceTree::placeIn(const SourceAttribute &attribute, int offset) const
{
    int position = attribute.offset;
    for (int read = 0; read < offset && position < m_text.size(); ++read) {
        const int end = m_text.at(position) == QLatin1Char('&') ? m_text.indexOf(QLatin1Char(';'), position) : -1;
        const bool isLineEnd = m_text.midRef(position).startsWith(QLatin1String("\r\n"));
        position = end >= 0 ? end + 1 : position + (isLineEnd ? 2 : 1);
    }
    return placeOf(position);
}

} // namespace declared
