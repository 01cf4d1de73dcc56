#include <files/jsonscan.h>

#include <files/jsonnames.h>

#include <algorithm>
#include <cstring>

namespace pagehost {

using namespace jsonnames;

namespace {

/// Members that identify an entry.
enum Member : quint32 {
    AnyEntry = 0,
    KindText = 1,
    DataObject = 2,
    RecordBytes = 4,
    RecordHead = 8,
    NameText = 16,
    LessonBytes = 32,
    AnyOther = 64
};

bool isSpace(char character)
{
    return character == ' ' || character == '\n' || character == '\r' || character == '\t';
}

bool isWordCharacter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '+' || character == '-' || character == '.';
}

quint32 memberOf(const QByteArray &key, char firstOfValue)
{
    const bool isText = firstOfValue == '"';
    if (key == kindName)
        return isText ? KindText : AnyOther;
    if (key == dataName)
        return firstOfValue == '{' ? DataObject : AnyOther;
    if (key == streamName || key == textName || key == payloadName)
        return isText ? RecordBytes : AnyOther;
    if (key == nameName)
        return isText ? NameText : AnyOther;
    if (key == bytesName)
        return isText ? LessonBytes : AnyOther;
    if (key == idName || key == zoomName || key == placeName)
        return RecordHead;
    return key == damagedName ? AnyEntry : AnyOther;
}

// Neither has other members: one that does may have swallowed the text that follows. Steps of lessons have kinds
// and data, too, but also other members.

bool isRecord(quint32 members)
{
    return (members & KindText) && (members & (DataObject | RecordBytes)) &&
           !(members & (NameText | LessonBytes | AnyOther));
}

bool isLesson(quint32 members)
{
    return (members & NameText) && (members & (DataObject | LessonBytes)) &&
           !(members & (KindText | RecordBytes | RecordHead | AnyOther));
}

} // namespace

bool JsonScan::takeValue(qint64 start)
{
    m_pos = start;
    m_lastString = start;
    m_isObject.clear();
    m_levels.fill(Level());
    m_entries.clear();
    m_expected = Value;
    do {
        if (!takeNext()) {
            const qint64 understood = m_entries.isEmpty() ? start : m_entries.last().end;
            m_resumption = std::max({start + 1, understood, std::min(m_lastString + 1, m_pos)});
            return false;
        }
    } while (!m_isObject.empty());
    return true;
}

char JsonScan::peek()
{
    while (m_pos < m_text.size() && isSpace(m_text.at(int(m_pos))))
        ++m_pos;
    return m_pos < m_text.size() ? m_text.at(int(m_pos)) : '\0';
}

bool JsonScan::takeNext()
{
    const char next = peek();
    const bool mayEnd = m_expected == Separator || m_expected == ValueOrEnd || m_expected == KeyOrEnd;
    if (mayEnd && (next == '}' || next == ']'))
        return close(next);
    if (m_expected == Separator) {
        m_pos += next == ',' ? 1 : 0;
        m_expected = m_isObject.back() ? Key : Value;
        return next == ',';
    }
    if (m_expected == Key || m_expected == KeyOrEnd)
        return takeKey();
    noteMember(next);
    m_expected = Separator;
    if (next == '{' || next == '[') {
        open(next == '{');
        return true;
    }
    return next == '"' ? takeString() : takeWord();
}

bool JsonScan::takeKey()
{
    if (peek() != '"' || !takeString())
        return false;
    m_key = QByteArray::fromRawData(m_text.constData() + m_lastString + 1, int(m_pos - m_lastString - 2));
    if (peek() != ':')
        return false;
    ++m_pos;
    m_expected = Value;
    return true;
}

/// A line break does not end a string, but shows that its end is missing.
bool JsonScan::takeString()
{
    m_lastString = m_pos;
    for (qint64 at = m_pos + 1; at < m_text.size() && m_text.at(int(at)) != '\n'; ++at) {
        const char character = m_text.at(int(at));
        if (character == '"') {
            m_pos = at + 1;
            return true;
        }
        at += character == '\\' ? 1 : 0;
    }
    return false;
}

bool JsonScan::takeWord()
{
    const qint64 start = m_pos;
    qint64 at = start;
    while (at < m_text.size() && isWordCharacter(m_text.at(int(at))))
        ++at;
    const QByteArray word = QByteArray::fromRawData(m_text.constData() + start, int(at - start));
    const bool isNumber = !word.isEmpty() && (word.at(0) == '-' || (word.at(0) >= '0' && word.at(0) <= '9'));
    if (!isNumber && word != "true" && word != "false" && word != "null")
        return false;
    m_pos = at;
    return true;
}

/// Of the open brackets. Only known for as many of them as levels are kept.
JsonScan::Level &JsonScan::innermost()
{
    return m_levels[m_isObject.size() % m_levels.size()];
}

void JsonScan::open(bool isObject)
{
    m_isObject.push_back(isObject);
    innermost() = {m_isObject.size(), m_pos, 0};
    m_expected = isObject ? KeyOrEnd : ValueOrEnd;
    ++m_pos;
}

bool JsonScan::close(char bracket)
{
    if (m_isObject.empty() || m_isObject.back() != (bracket == '}'))
        return false;
    ++m_pos;
    m_expected = Separator;
    if (innermost().depth == m_isObject.size())
        noteEntry(innermost());
    m_isObject.pop_back();
    return true;
}

void JsonScan::noteMember(char firstOfValue)
{
    if (!m_isObject.empty() && m_isObject.back())
        innermost().members |= memberOf(m_key, firstOfValue);
}

void JsonScan::noteEntry(const Level &level)
{
    if (!isRecord(level.members) && !isLesson(level.members))
        return;
    while (!m_entries.isEmpty() && m_entries.last().start > level.start)
        m_entries.removeLast();
    m_entries.append({isRecord(level.members) ? JsonEntry::Object : JsonEntry::Lesson, level.start, m_pos});
}

/// A broken value is understood up to some position, and the open values are broken at the same one, so nothing
/// before has to be read again.
QVector<JsonEntry> findEntries(const QByteArray &text)
{
    QVector<JsonEntry> entries;
    JsonScan scan(text);
    qint64 start = text.indexOf('{');
    while (start >= 0) {
        const bool isWhole = scan.takeValue(start);
        entries += scan.entries();
        start = text.indexOf('{', int(isWhole ? scan.end() : scan.resumption()));
    }
    return entries;
}

} // namespace pagehost
