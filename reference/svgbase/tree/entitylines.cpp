#include "tree/entitylines.h"

#include <algorithm>
#include <cstring>

namespace Svg {

namespace {

bool isQuote(char c)
{
    return c == '"' || c == '\'';
}

bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

class EntityLines
{
public:
    explicit EntityLines(const QByteArray &xml)
        : m_xml(xml)
    {
    }

    QByteArray rewritten();

private:
    bool isAt(const char *text) const
    {
        const size_t length = qstrlen(text);
        return size_t(m_xml.size() - m_at) >= length && memcmp(m_xml.constData() + m_at, text, length) == 0;
    }
    bool atEnd() const { return m_at >= m_xml.size(); }
    int behind(const char *text, int from, int end) const;
    bool findDoctype();
    void copyTo(int end);
    bool copyComment();
    void copyLiteral();
    int copyOnOneLine(int end);
    int tagEnd(int end) const;
    int markupEnd(int end) const;

    const QByteArray &m_xml;
    QByteArray m_result;
    int m_at = 0;
};

// Searches up to `end`, which is the result if the text is not found.
int EntityLines::behind(const char *text, int from, int end) const
{
    const char *begin = m_xml.constData();
    const char *stop = begin + end;
    const char *found = std::search(begin + qMin(from, end), stop, text, text + qstrlen(text));
    return found == stop ? end : int(found - begin) + int(qstrlen(text));
}

void EntityLines::copyTo(int end)
{
    m_result.append(m_xml.constData() + m_at, end - m_at);
    m_at = end;
}

// Comments and instructions may contain quotes and brackets.
bool EntityLines::copyComment()
{
    if (isAt("<!--"))
        copyTo(behind("-->", m_at + 4, m_xml.size()));
    else if (isAt("<?"))
        copyTo(behind("?>", m_at + 2, m_xml.size()));
    else
        return false;
    return true;
}

// Only comments and instructions can precede it.
bool EntityLines::findDoctype()
{
    for (;;) {
        const int next = m_xml.indexOf('<', m_at);
        if (next < 0)
            return false;
        copyTo(next);
        if (!copyComment())
            return isAt("<!DOCTYPE");
    }
}

// Quoted values may contain brackets.
int EntityLines::tagEnd(int end) const
{
    char quote = '\0';
    for (int at = m_at; at < end; ++at) {
        const char c = m_xml.at(at);
        if (quote != '\0')
            quote = c == quote ? '\0' : quote;
        else if (isQuote(c))
            quote = c;
        else if (c == '>')
            return at + 1;
    }
    return end;
}

int EntityLines::markupEnd(int end) const
{
    if (isAt("<!--"))
        return behind("-->", m_at + 4, end);
    if (isAt("<![CDATA["))
        return behind("]]>", m_at, end);
    return isAt("<?") ? behind("?>", m_at, end) : tagEnd(end);
}

// Returns the number of lines that end in the copied text.
int EntityLines::copyOnOneLine(int end)
{
    int lines = 0;
    for (; m_at < end; ++m_at) {
        const char c = m_xml.at(m_at);
        m_result.append(isLineEnd(c) ? ' ' : c);
        const bool endsWithNext = c == '\r' && m_at + 1 < end && m_xml.at(m_at + 1) == '\n';
        lines += isLineEnd(c) && !endsWithNext ? 1 : 0;
    }
    return lines;
}

void EntityLines::copyLiteral()
{
    const char quote = m_xml.at(m_at);
    const int close = m_xml.indexOf(quote, m_at + 1);
    const int end = close < 0 ? m_xml.size() : close;
    int lines = 0;
    while (m_at < end) {
        const char *begin = m_xml.constData();
        copyTo(int(std::find(begin + m_at, begin + end, '<') - begin));
        if (m_at < end)
            lines += copyOnOneLine(markupEnd(end));
    }
    copyTo(qMin(end + 1, m_xml.size()));
    m_result.append(QByteArray(lines, '\n'));
}

QByteArray EntityLines::rewritten()
{
    if (!findDoctype())
        return m_xml;
    int open = 0;
    while (!atEnd()) {
        const char c = m_xml.at(m_at);
        if (copyComment())
            continue;
        if (isQuote(c)) {
            copyLiteral();
            continue;
        }
        open += c == '<' ? 1 : c == '>' ? -1 : 0;
        copyTo(m_at + 1);
        if (open == 0)
            break;
    }
    copyTo(m_xml.size());
    return m_result;
}

} // namespace

QByteArray withEntityMarkupOnOneLine(const QByteArray &xml)
{
    return EntityLines(xml).rewritten();
}

} // namespace Svg
