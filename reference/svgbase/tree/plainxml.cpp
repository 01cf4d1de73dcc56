#include "tree/plainxml.h"

#include "grammar/inputlimits.h"
#include "tree/treebuilder.h"

#include <array>

namespace Svg {

namespace {

const QLatin1String xmlNamespace("http://www.w3.org/XML/1998/namespace");
const QLatin1String xmlnsNamespace("http://www.w3.org/2000/xmlns/");
/// Most attributes of one tag; the search for duplicates compares each with all others.
constexpr int mostAttributes = 32;

enum CharacterClass : quint8 { NameStart = 1, NamePart = 2, Space = 4, Special = 8 };

std::array<quint8, 128> classTable()
{
    std::array<quint8, 128> table{};
    for (char16_t c = 0; c < 128; ++c) {
        const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
        const bool digit = c >= '0' && c <= '9';
        const bool space = c == ' ' || c == '\t' || c == '\n';
        const bool special = c == '&' || (c < ' ' && !space);
        table[c] = quint8((letter ? NameStart | NamePart : 0) | (digit || c == '-' || c == '.' ? NamePart : 0) |
                          (space ? Space : 0) | (special ? Special : 0));
    }
    return table;
}

const std::array<quint8, 128> classes = classTable();

bool is(CharacterClass wanted, QChar c)
{
    return c.unicode() < 128 && (classes[c.unicode()] & wanted);
}

// The replacement character represents bytes that are not UTF-8.
bool isPlainText(QStringView text)
{
    for (const QChar c : text)
        if (c.unicode() < 128 ? (classes[c.unicode()] & Special) != 0 : c.unicode() >= 0xfffd)
            return false;
    return true;
}

bool isBlank(QStringView text)
{
    for (const QChar c : text)
        if (!is(Space, c))
            return false;
    return true;
}

/// A name and its parts before and after the colon.
struct Name
{
    QStringView whole;
    QStringView prefix;
    QStringView local;
};

class PlainReader
{
public:
    PlainReader(const QString &text, TreeBuilder *builder)
        : m_builder(builder)
        , m_at(text.constData())
        , m_end(text.constData() + text.size())
        , m_counted(m_at)
        , m_lineStart(m_at)
    {
    }

    bool read();

private:
    struct Attribute
    {
        Name name;
        QStringView value;
    };
    struct Namespace
    {
        QStringView prefix;
        QStringView uri;
    };
    struct Open
    {
        QStringView name;
        int namespaces; ///< number in scope outside
    };

    bool readXmlDeclaration();
    bool skipLatin1(QLatin1String text);
    bool readQuoted(QLatin1String name, QLatin1String value);
    bool readText();
    bool readMarkup();
    bool readComment();
    bool readStartTag();
    bool readEndTag();
    bool readAttributes();
    bool readAttribute(Attribute *attribute);
    bool readName(Name *name);
    QStringView readNamePart();
    bool skipSpace();
    bool declareNamespaces();
    bool declare(QStringView prefix, QStringView uri);
    bool resolveAttributes();
    bool hasDuplicates() const;
    bool findNamespace(QStringView prefix, QStringView *uri) const;
    QStringView normalized(QStringView value);
    XmlPlace place();
    bool atEnd() const { return m_at == m_end; }
    bool isAt(char16_t c) const { return m_at != m_end && *m_at == QChar(c); }
    bool skip(char16_t c);

    TreeBuilder *m_builder;
    const QChar *m_at;
    const QChar *m_end;
    /// Lines were counted up to here.
    const QChar *m_counted;
    const QChar *m_lineStart;
    qint64 m_line = 1;
    bool m_rootSeen = false;
    XmlElement m_element;
    QVarLengthArray<Attribute, mostAttributes> m_attributes;
    QVarLengthArray<QString, 4> m_normalized;
    QVarLengthArray<Namespace, 16> m_namespaces;
    QVarLengthArray<Open, 64> m_open;
};

bool PlainReader::skip(char16_t c)
{
    const bool found = isAt(c);
    m_at += found ? 1 : 0;
    return found;
}

bool PlainReader::skipLatin1(QLatin1String text)
{
    if (!QStringView(m_at, m_end).startsWith(text))
        return false;
    m_at += text.size();
    return true;
}

bool PlainReader::skipSpace()
{
    const QChar *begin = m_at;
    while (m_at != m_end && is(Space, *m_at))
        ++m_at;
    return m_at != begin;
}

XmlPlace PlainReader::place()
{
    for (;;) {
        const qsizetype found = QStringView(m_counted, m_at).indexOf(QLatin1Char('\n'));
        if (found < 0)
            break;
        m_counted += found + 1;
        m_lineStart = m_counted;
        ++m_line;
    }
    m_counted = m_at;
    return {m_line, m_at - m_lineStart + 1};
}

QStringView PlainReader::readNamePart()
{
    const QChar *begin = m_at;
    if (atEnd() || !is(NameStart, *m_at))
        return {};
    while (m_at != m_end && is(NamePart, *m_at))
        ++m_at;
    return {begin, m_at};
}

bool PlainReader::readName(Name *name)
{
    const QChar *begin = m_at;
    name->prefix = {};
    name->local = readNamePart();
    if (name->local.isEmpty())
        return false;
    if (skip(':')) {
        name->prefix = name->local;
        name->local = readNamePart();
        if (name->local.isEmpty())
            return false;
    }
    name->whole = {begin, m_at};
    // Other characters of names are not plain.
    return atEnd() || (m_at->unicode() < 128 && !isAt(':'));
}

bool PlainReader::readQuoted(QLatin1String name, QLatin1String value)
{
    if (!skipLatin1(name) || !skip('='))
        return false;
    const char16_t quote = isAt('\'') ? '\'' : '"';
    if (!skip(quote) || !QStringView(m_at, m_end).startsWith(value, Qt::CaseInsensitive))
        return false;
    m_at += value.size();
    return skip(quote);
}

bool PlainReader::readXmlDeclaration()
{
    if (!skipLatin1(QLatin1String("<?xml ")))
        return true;
    if (!readQuoted(QLatin1String("version"), QLatin1String("1.0")))
        return false;
    const QLatin1String encoding(" encoding");
    if (QStringView(m_at, m_end).startsWith(encoding) && !readQuoted(encoding, QLatin1String("utf-8")))
        return false;
    skipSpace();
    return skipLatin1(QLatin1String("?>"));
}

bool PlainReader::read()
{
    if (!isPlainText({m_at, m_end}) || !readXmlDeclaration())
        return false;
    while (!atEnd())
        if (!readText() || (!atEnd() && !readMarkup()) || !m_builder->refusal().text.isEmpty())
            return false;
    return m_rootSeen && m_open.isEmpty();
}

bool PlainReader::readText()
{
    const QStringView rest(m_at, m_end);
    const qsizetype found = rest.indexOf(QLatin1Char('<'));
    const QStringView text = found < 0 ? rest : rest.left(found);
    m_at += text.size();
    if (m_open.isEmpty())
        return isBlank(text);
    if (text.isEmpty())
        return true;
    if (text.contains(QLatin1Char(']')) && text.contains(QLatin1String("]]>")))
        return false;
    // Only the following "<" ends a text, so it counts as read.
    const XmlPlace end = place();
    m_builder->characters(text, false, {end.line, end.column + 1});
    return true;
}

bool PlainReader::readMarkup()
{
    if (m_end - m_at < 2)
        return false;
    if (m_at[1] == QLatin1Char('/'))
        return readEndTag();
    if (m_at[1] == QLatin1Char('!'))
        return readComment();
    return readStartTag();
}

bool PlainReader::readComment()
{
    if (!skipLatin1(QLatin1String("<!--")))
        return false;
    const qsizetype dashes = QStringView(m_at, m_end).indexOf(QLatin1String("--"));
    if (dashes < 0)
        return false;
    m_at += dashes + 2;
    return skip('>');
}

bool PlainReader::readEndTag()
{
    m_at += 2;
    Name name;
    if (m_open.isEmpty() || !readName(&name) || name.whole != m_open.last().name)
        return false;
    skipSpace();
    if (!skip('>'))
        return false;
    m_namespaces.resize(m_open.last().namespaces);
    m_open.removeLast();
    m_builder->endElement();
    return true;
}

bool PlainReader::readStartTag()
{
    ++m_at;
    Name name;
    if ((m_open.isEmpty() && m_rootSeen) || m_open.size() >= Limits::depth || !readName(&name) || !readAttributes())
        return false;
    m_rootSeen = true;
    const int namespaces = m_namespaces.size();
    const bool empty = skip('/');
    if (!skip('>') || !declareNamespaces() || !resolveAttributes() ||
        !findNamespace(name.prefix, &m_element.namespaceUri))
        return false;
    m_element.name = name.local;
    m_element.qualifiedName = name.whole;
    m_builder->startElement(m_element, place());
    if (!m_builder->refusal().text.isEmpty() || m_builder->hasEnded())
        return false;
    if (empty) {
        m_namespaces.resize(namespaces);
        m_builder->endElement();
    } else {
        m_open.append({name.whole, namespaces});
    }
    return true;
}

bool PlainReader::readAttributes()
{
    m_attributes.clear();
    m_normalized.clear();
    for (;;) {
        const bool spaced = skipSpace();
        if (isAt('/') || isAt('>'))
            return !hasDuplicates();
        Attribute attribute;
        if (!spaced || m_attributes.size() == mostAttributes || !readAttribute(&attribute))
            return false;
        m_attributes.append(attribute);
    }
}

bool PlainReader::readAttribute(Attribute *attribute)
{
    if (!readName(&attribute->name))
        return false;
    skipSpace();
    if (!skip('='))
        return false;
    skipSpace();
    if (!isAt('"') && !isAt('\''))
        return false;
    const QStringView rest(m_at + 1, m_end);
    const qsizetype size = rest.indexOf(*m_at);
    if (size < 0)
        return false;
    m_at += size + 2;
    attribute->value = normalized(rest.left(size));
    return !attribute->value.contains(QLatin1Char('<'));
}

// XML 1.0 §3.3.3: white space in a value becomes spaces.
QStringView PlainReader::normalized(QStringView value)
{
    if (!value.contains(QLatin1Char('\n')) && !value.contains(QLatin1Char('\t')))
        return value;
    QString spaced = value.toString();
    spaced.replace(QLatin1Char('\n'), QLatin1Char(' '));
    spaced.replace(QLatin1Char('\t'), QLatin1Char(' '));
    m_normalized.append(spaced);
    return m_normalized.last();
}

// Includes names that differ only in their prefixes, since those may be the same.
bool PlainReader::hasDuplicates() const
{
    for (int i = 1; i < m_attributes.size(); ++i) {
        const QStringView local = m_attributes[i].name.local;
        for (int j = 0; j < i; ++j) {
            const Name &other = m_attributes[j].name;
            if (other.local.size() == local.size() && other.local == local &&
                other.prefix.isEmpty() == m_attributes[i].name.prefix.isEmpty())
                return true;
        }
    }
    return false;
}

bool PlainReader::declareNamespaces()
{
    m_element.declarations.clear();
    for (const Attribute &attribute : m_attributes) {
        const bool isDefault = attribute.name.whole == QLatin1String("xmlns");
        if (!isDefault && attribute.name.prefix != QLatin1String("xmlns"))
            continue;
        if (!declare(isDefault ? QStringView() : attribute.name.local, attribute.value))
            return false;
    }
    return true;
}

// Namespaces in XML 1.0 §3: a prefix can't be undeclared, and two names are reserved. Normalised text isn't valid
// as long as its element.
bool PlainReader::declare(QStringView prefix, QStringView uri)
{
    if (uri.contains(QLatin1Char(' ')) || uri == xmlNamespace || uri == xmlnsNamespace ||
        prefix == QLatin1String("xml") || prefix == QLatin1String("xmlns") || (uri.isEmpty() && !prefix.isEmpty()))
        return false;
    m_element.declarations.append({prefix, uri});
    m_namespaces.append({prefix, uri});
    return true;
}

bool PlainReader::findNamespace(QStringView prefix, QStringView *uri) const
{
    static const QString ofXml = xmlNamespace;
    *uri = prefix == QLatin1String("xml") ? QStringView(ofXml) : QStringView();
    for (int i = m_namespaces.size() - 1; i >= 0; --i) {
        if (m_namespaces[i].prefix == prefix) {
            *uri = m_namespaces[i].uri;
            return true;
        }
    }
    return prefix.isEmpty() || !uri->isEmpty();
}

bool PlainReader::resolveAttributes()
{
    m_element.attributes.clear();
    for (const Attribute &attribute : m_attributes) {
        const Name &name = attribute.name;
        if (name.whole == QLatin1String("xmlns") || name.prefix == QLatin1String("xmlns"))
            continue;
        QStringView uri;
        if (!name.prefix.isEmpty() && !findNamespace(name.prefix, &uri))
            return false;
        m_element.attributes.append({uri, name.local, name.whole, attribute.value});
    }
    return true;
}

} // namespace

bool readPlainXml(const QString &text, TreeBuilder *builder)
{
    return PlainReader(text, builder).read();
}

} // namespace Svg
