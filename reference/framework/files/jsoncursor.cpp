#include <files/jsoncursor.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <cstring>

namespace pagehost {

namespace {

bool isSpace(char character)
{
    return character == ' ' || character == '\n' || character == '\r' || character == '\t';
}

bool endsPlainValue(char character)
{
    return isSpace(character) || character == ',' || character == ']' || character == '}' || character == ':' ||
           character == '{' || character == '[' || character == '"';
}

/// False for an invalid escape.
bool unescape(QByteArray &string)
{
    if (!string.contains('\\'))
        return true;
    const QJsonDocument document = QJsonDocument::fromJson("[\"" + string + "\"]");
    string = document.array().at(0).toString().toUtf8();
    return !document.isNull();
}

} // namespace

JsonCursor::JsonCursor(const QByteArray &text)
    : m_text(text)
    , m_pos(text.startsWith("\xef\xbb\xbf") ? 3 : 0)
{
}

char JsonCursor::peek()
{
    while (!atEnd() && isSpace(m_text.at(int(m_pos))))
        ++m_pos;
    return atEnd() ? '\0' : m_text.at(int(m_pos));
}

bool JsonCursor::take(char character)
{
    if (peek() != character || atEnd())
        return false;
    ++m_pos;
    return true;
}

bool JsonCursor::takeKey(QByteArray &key)
{
    const qint64 start = m_pos;
    if (peek() == '"' && takeString(key) && take(':') && unescape(key))
        return true;
    m_pos = start;
    return false;
}

bool JsonCursor::takeString(QByteArray &contents)
{
    const char *const begin = m_text.constData() + m_pos + 1;
    const char *const end = m_text.constData() + m_text.size();
    const char *at = begin;
    while (at < end && *at != '"')
        at += *at == '\\' ? 2 : 1;
    if (at >= end)
        return false;
    contents = QByteArray::fromRawData(begin, int(at - begin));
    m_pos = at + 1 - m_text.constData();
    return true;
}

bool JsonCursor::takeValue(QByteArray &value)
{
    const char first = peek();
    const qint64 start = m_pos;
    QByteArray contents;
    bool isWhole = false;
    if (first == '"') {
        isWhole = takeString(contents);
    } else if (first == '{' || first == '[') {
        isWhole = skipBracketed();
    } else {
        while (!atEnd() && !endsPlainValue(m_text.at(int(m_pos))))
            ++m_pos;
        isWhole = m_pos > start;
    }
    if (!isWhole) {
        m_pos = start;
        return false;
    }
    value = QByteArray::fromRawData(m_text.constData() + start, int(m_pos - start));
    return true;
}

/// Counts brackets of both kinds together; parsing the value tells whether they match.
bool JsonCursor::skipBracketed()
{
    qint64 depth = 0;
    QByteArray ignored;
    const char *const text = m_text.constData();
    while (m_pos < m_text.size()) {
        const char character = text[m_pos];
        if (character == '"') {
            if (!takeString(ignored))
                return false;
            continue;
        }
        ++m_pos;
        if (character == '{' || character == '[')
            ++depth;
        else if ((character == '}' || character == ']') && --depth == 0)
            return true;
    }
    return false;
}

QJsonValue parseJson(const QByteArray &text, JsonProblem &problem)
{
    const bool isBracketed = text.startsWith('{') || text.startsWith('[');
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(isBracketed ? text : '[' + text + ']', &error);
    problem.isThere = error.error != QJsonParseError::NoError;
    if (problem.isThere) {
        problem.text = error.errorString();
        problem.offset = std::max(0, error.offset - (isBracketed ? 0 : 1));
        return QJsonValue(QJsonValue::Undefined);
    }
    if (!isBracketed)
        return document.array().at(0);
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

void LineCounter::locate(qint64 offset, int &line, int &column)
{
    if (offset < m_lineStart) {
        m_lineStart = m_pos = 0;
        m_line = 1;
    }
    const char *const text = m_text.constData();
    const qint64 end = std::min<qint64>(offset, m_text.size());
    while (m_pos < end) {
        const void *found = std::memchr(text + m_pos, '\n', size_t(end - m_pos));
        if (!found)
            break;
        m_lineStart = m_pos = static_cast<const char *>(found) + 1 - text;
        ++m_line;
    }
    line = m_line;
    column = int(end - m_lineStart) + 1;
}

} // namespace pagehost
