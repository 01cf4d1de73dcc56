#include <shapekit/tagscanner.h>

namespace shapekit {

int RawTag::offsetOf(const QString &attribute) const
{
    for (const RawAttribute &candidate : attributes)
        if (candidate.name == attribute)
            return candidate.offset;
    return offset;
}

QString valueAt(const QString &text, int start)
{
    const int end = text.indexOf(text.at(start - 1), start);
    return end < 0 ? QString() : text.mid(start, end - start);
}

TagScanner::TagScanner(const QString &text)
    : m_text(text)
{
}

bool TagScanner::next(RawTag &tag)
{
    if (m_isEmptyTag)
        --m_depth;
    m_isEmptyTag = false;
    while (m_offset < m_text.size()) {
        const int start = m_text.indexOf(QLatin1Char('<'), m_offset);
        m_offset = start < 0 ? m_text.size() : start;
        if (isAt("<!--")) {
            skipBehind("-->");
        } else if (isAt("<![CDATA[")) {
            skipBehind("]]>");
        } else if (isAt("<?")) {
            skipBehind("?>");
        } else if (isAt("<!")) {
            skipDeclaration();
        } else if (isAt("</")) {
            --m_depth;
            skipBehind(">");
        } else if (m_offset < m_text.size()) {
            readTag(tag);
            return true;
        }
    }
    return false;
}

bool TagScanner::isAt(const char *text) const
{
    return m_text.midRef(m_offset).startsWith(QLatin1String(text));
}

void TagScanner::skipBehind(const char *text)
{
    const QLatin1String end(text);
    const int found = m_text.indexOf(end, m_offset);
    m_offset = found < 0 ? m_text.size() : found + end.size();
}

/// A document type, with the declarations in its brackets.
void TagScanner::skipDeclaration()
{
    int depth = 0;
    for (; m_offset < m_text.size(); ++m_offset) {
        const QChar character = current();
        if (character == QLatin1Char('['))
            ++depth;
        else if (character == QLatin1Char(']'))
            --depth;
        else if (character == QLatin1Char('>') && depth <= 0)
            break;
    }
    ++m_offset;
}

void TagScanner::readTag(RawTag &tag)
{
    tag = {};
    tag.offset = m_offset++;
    tag.name = readName();
    ++m_depth;
    skipSpace();
    while (m_offset < m_text.size() && current() != QLatin1Char('>') && current() != QLatin1Char('<')) {
        const int before = m_offset;
        m_isEmptyTag = current() == QLatin1Char('/');
        readAttribute(tag);
        skipSpace();
        m_offset += m_offset == before ? 1 : 0;
    }
}

void TagScanner::readAttribute(RawTag &tag)
{
    const QString name = readName();
    skipSpace();
    if (name.isEmpty() || current() != QLatin1Char('='))
        return;
    ++m_offset;
    skipSpace();
    const QChar quote = current();
    if (quote != QLatin1Char('"') && quote != QLatin1Char('\''))
        return;
    const int end = m_text.indexOf(quote, m_offset + 1);
    tag.attributes.append({name, m_offset + 1});
    m_offset = end < 0 ? m_text.size() : end + 1;
}

QString TagScanner::readName()
{
    const int start = m_offset;
    const QString ends = QStringLiteral("=/><\"'");
    while (m_offset < m_text.size() && !current().isSpace() && !ends.contains(current()))
        ++m_offset;
    return m_text.mid(start, m_offset - start);
}

void TagScanner::skipSpace()
{
    while (current().isSpace())
        ++m_offset;
}

} // namespace shapekit
