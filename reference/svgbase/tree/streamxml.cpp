#include "tree/streamxml.h"

#include "grammar/inputlimits.h"
#include "tree/entitylines.h"
#include "tree/tagscanner.h"
#include "tree/treebuilder.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTextCodec>
#include <QtCore/QXmlStreamReader>

namespace Svg {

namespace {

/// Passes the events of Qt's reader to a builder.
class StreamReading
{
public:
    StreamReading(QXmlStreamReader &xml, TreeBuilder *builder)
        : m_xml(xml)
        , m_builder(builder)
    {
    }

    /// False when the text is not well formed or the builder refused it.
    bool read();

private:
    void startElement();
    void tellNext(QXmlStreamReader::TokenType token);
    XmlPlace place() const { return {m_xml.lineNumber(), m_xml.columnNumber() + 1}; }

    QXmlStreamReader &m_xml;
    TreeBuilder *m_builder;
};

void StreamReading::startElement()
{
    const QXmlStreamAttributes attributes = m_xml.attributes();
    const QXmlStreamNamespaceDeclarations declarations = m_xml.namespaceDeclarations();
    XmlElement element{m_xml.namespaceUri(), m_xml.name(), m_xml.qualifiedName(), {}, {}};
    for (const QXmlStreamAttribute &attribute : attributes)
        element.attributes.append(
            {attribute.namespaceUri(), attribute.name(), attribute.qualifiedName(), attribute.value()});
    for (const QXmlStreamNamespaceDeclaration &declaration : declarations)
        element.declarations.append({declaration.prefix(), declaration.namespaceUri()});
    m_builder->startElement(element, place());
}

void StreamReading::tellNext(QXmlStreamReader::TokenType token)
{
    if (token == QXmlStreamReader::StartElement)
        startElement();
    else if (token == QXmlStreamReader::EndElement)
        m_builder->endElement();
    else if (token == QXmlStreamReader::Characters)
        m_builder->characters(m_xml.text(), m_xml.isCDATA(), place());
}

bool StreamReading::read()
{
    while (!m_xml.atEnd() && !m_builder->hasEnded()) {
        tellNext(m_xml.readNext());
        if (!m_builder->refusal().text.isEmpty())
            m_xml.raiseError(m_builder->refusal().text);
    }
    return !m_xml.hasError();
}

QByteArray declaredEncoding(const QByteArray &text)
{
    if (!text.startsWith("<?xml"))
        return QByteArray();
    static const QRegularExpression pattern(QStringLiteral("encoding\\s*=\\s*[\"']([A-Za-z0-9._-]{1,40})[\"']"));
    const QString declaration = QString::fromLatin1(text.left(text.indexOf("?>")));
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

// Null for UTF-8. Valid UTF-8 counts as that whatever its declaration says: programs rewrite text and forget it.
QTextCodec *foreignCodec(const QByteArray &text, const QByteArray &declared)
{
    if (isUtf16(text))
        return QTextCodec::codecForUtfText(text,
                                           QTextCodec::codecForName(text[0] == '<' ? "UTF-16LE" : "UTF-16BE"));
    if (claimsUtf8(declared) || isUtf8(text))
        return nullptr;
    return QTextCodec::codecForName(declared);
}

} // namespace

bool isTextTooLong(const QByteArray &text, Messages *messages)
{
    if (text.size() <= Limits::textBytes)
        return false;
    messages->fail(Message::TextTooLong, QStringLiteral("The text is longer than %1 bytes.").arg(Limits::textBytes),
                   0, 0);
    return true;
}

bool readStreamedXml(const QByteArray &text, Tree *tree, Messages *messages)
{
    const QByteArray declared = declaredEncoding(text);
    const QTextCodec *codec = foreignCodec(text, declared);
    const QByteArray decoded = codec ? codec->toUnicode(text).toUtf8() : text;
    // Other encodings may need fewer bytes than UTF-8.
    if (isTextTooLong(decoded, messages))
        return false;
    const std::optional<QByteArray> thinned = withoutCrowdedTags(withEntityMarkupOnOneLine(decoded));
    if (!thinned) {
        messages->fail(Message::TooManyAttributes,
                       QStringLiteral("A tag or an entity has more than %1 attributes.").arg(Limits::attributes), 0,
                       0);
        return false;
    }
    QXmlStreamReader xml;
    // Given characters instead of bytes, the reader ignores the declared encoding.
    if (codec || !claimsUtf8(declared))
        xml.addData(QString::fromUtf8(thinned->constData(), thinned->size()));
    else
        xml.addData(*thinned);
    TreeBuilder builder(tree, messages);
    if (StreamReading(xml, &builder).read())
        return true;
    const Message::Code code = builder.refusal().text.isEmpty() ? Message::NotWellFormed : builder.refusal().code;
    messages->fail(code, xml.errorString(), xml.lineNumber(), xml.columnNumber() + 1);
    return false;
}

} // namespace Svg
