#include <files/jsonsalvage.h>

#include <pagehost/assetstore.h>

#include <files/jsonnames.h>
#include <files/jsonscan.h>

#include <algorithm>
#include <cstring>

namespace pagehost {

using namespace jsonnames;

namespace {

/// How much text may be read in vain for the values of members, as a multiple of the file: damaged nesting gets no
/// more time.
constexpr qint64 mostVainReading = 16;

bool isStructural(char character)
{
    return std::strchr("{}[],:\t\r\n ", character) != nullptr && character != '\0';
}

/// Its array is cut into marks.
bool isArrayOfMarks(const QByteArray &key)
{
    return key == pagesName || key == lessonsName || key == objectsName;
}

} // namespace

JsonSalvage::JsonSalvage(const QByteArray &text, JsonAssembly &assembly)
    : m_text(text)
    , m_assembly(assembly)
    , m_isOwnLayout(isInOwnLayout(text))
{
}

void JsonSalvage::read()
{
    qint64 from = JsonCursor(m_text).offset(); // behind a byte order mark
    const QVector<JsonMark> marks = findMarks(m_text);
    for (int i = 0; i < marks.size(); ++i) {
        readLoose(from, marks[i].start);
        from = take(marks[i], i + 1 < marks.size() ? marks[i + 1].start : m_text.size());
    }
    readLoose(from, m_text.size());
}

qint64 JsonSalvage::take(const JsonMark &mark, qint64 limit)
{
    if (mark.isWhole) {
        const QByteArray text = slice(mark.start, mark.end);
        mark.sort == JsonMark::Lesson ? m_assembly.takeLesson(text) : m_assembly.takeObject(text);
        return mark.end;
    }
    if (limit < m_text.size() && isStructure(mark.start, limit)) {
        // A bracket too many, or a line that appears twice.
        m_assembly.reportReadDamage(mark.start);
        return limit;
    }
    if (mark.sort == JsonMark::Page) {
        m_assembly.beginPage(mark.start);
        m_context = Context::Page;
        return mark.start;
    }
    const bool isObject = mark.sort == JsonMark::Object;
    const qint64 end = endOfBroken(mark.start, limit, isObject ? objectIndentation : lessonIndentation);
    const QByteArray text = slice(mark.start, end);
    isObject ? m_assembly.takeObject(text) : m_assembly.keepBrokenLesson(text);
    return end;
}

void JsonSalvage::readLoose(qint64 from, qint64 to)
{
    while (from < to)
        from = readNext(from, to);
    keepUnread();
}

qint64 JsonSalvage::readNext(qint64 from, qint64 to)
{
    const char character = m_text.at(int(from));
    if (isStructural(character)) {
        takeStructure(character);
        return from + 1;
    }
    JsonCursor cursor(slice(0, to));
    cursor.setOffset(from);
    QByteArray key;
    const bool isMember = cursor.takeKey(key);
    const bool isOfPage = m_isOwnLayout && isFirstOnLine(from, pageMemberIndentation);
    const bool isOfDocument = m_isOwnLayout && isFirstOnLine(from, memberIndentation);
    const bool isPlaced =
        !m_isOwnLayout || isOfPage || isOfDocument || !isFirstOnLine(from, -1) || AssetStore::isKey(key);
    cursor.peek();
    const qint64 valueEnd = isMember && isPlaced ? endOfValue(cursor.offset(), to) : -1;
    if (valueEnd >= 0) {
        keepUnread();
        const Context context = isOfPage ? Context::Page : isOfDocument ? Context::Document : m_context;
        readMember(key, slice(cursor.offset(), valueEnd), context);
        return valueEnd;
    }
    if (isMember && isArrayOfMarks(key) && cursor.peek() == '[')
        return cursor.offset();
    // Each asset is read by itself.
    if (isMember && key == assetsName && cursor.take('{'))
        return cursor.offset();
    const int indentation = isOfPage ? pageMemberIndentation : memberIndentation;
    const qint64 end = isMember && (isOfPage || isOfDocument) ? endOfBroken(from, to, indentation)
                                                              : std::min(nextLine(m_text, from), to);
    addUnread(from, end);
    return end;
}

/// -1 for a value that is broken, or when too much has been read in vain.
qint64 JsonSalvage::endOfValue(qint64 from, qint64 to)
{
    JsonScan scan(slice(0, to));
    if (m_vainReading > mostVainReading * m_text.size())
        return -1;
    if (scan.takeValue(from))
        return scan.end();
    m_vainReading += scan.failure() - from;
    return -1;
}

void JsonSalvage::readMember(const QByteArray &key, const QByteArray &value, Context context)
{
    const qint64 offset = value.constData() - m_text.constData();
    if (isArrayOfMarks(key)) {
        // It contains no object or page.
        if (!value.startsWith('['))
            m_assembly.reportType(key, offset);
        if (!isStructure(offset, offset + value.size()))
            m_assembly.keepDamaged(value, offset);
    } else if (context == Context::Page && m_assembly.hasPage()) {
        m_assembly.takePageMember(key, value);
    } else {
        m_assembly.takeDocumentMember(key, value);
    }
}

/// In other layouts only brackets tell where a page ends.
void JsonSalvage::takeStructure(char character)
{
    if (character == '}')
        m_context = Context::Document;
}

void JsonSalvage::addUnread(qint64 from, qint64 to)
{
    if (m_unreadStart == m_unreadEnd)
        m_unreadStart = from;
    m_unreadEnd = to;
}

void JsonSalvage::keepUnread()
{
    while (m_unreadEnd > m_unreadStart && isStructural(m_text.at(int(m_unreadEnd) - 1)))
        --m_unreadEnd;
    if (m_unreadEnd > m_unreadStart)
        m_assembly.keepDamaged(slice(m_unreadStart, m_unreadEnd), m_unreadStart);
    m_unreadStart = m_unreadEnd = 0;
}

QByteArray JsonSalvage::slice(qint64 from, qint64 to) const
{
    return QByteArray::fromRawData(m_text.constData() + from, int(to - from));
}

bool JsonSalvage::isStructure(qint64 from, qint64 to) const
{
    const char *const text = m_text.constData();
    return std::all_of(text + from, text + to, isStructural);
}

/// Of a broken part: in this program's layout the line that ends it, in others the bracket that does.
qint64 JsonSalvage::endOfBroken(qint64 start, qint64 limit, int indentation) const
{
    if (!m_isOwnLayout) {
        JsonCursor cursor(slice(0, limit));
        cursor.setOffset(start);
        QByteArray whole;
        return cursor.takeValue(whole) ? cursor.offset() : limit;
    }
    for (qint64 line = nextLine(m_text, start); line < limit; line = nextLine(m_text, line)) {
        const int spaces = indentationAt(m_text, line);
        const qint64 first = line + spaces;
        const bool isEmpty = first >= limit || m_text.at(int(first)) == '\n';
        if (spaces <= indentation && !isEmpty) {
            const bool isEnd =
                spaces == indentation && (m_text.at(int(first)) == '}' || m_text.at(int(first)) == ']');
            return isEnd ? first + 1 : line;
        }
    }
    return limit;
}

/// With that many spaces before it; any number for -1.
bool JsonSalvage::isFirstOnLine(qint64 place, int indentation) const
{
    qint64 start = place;
    while (start > 0 && m_text.at(int(start) - 1) == ' ')
        --start;
    const bool isFirst = start == 0 || m_text.at(int(start) - 1) == '\n';
    return isFirst && (indentation < 0 || place - start == indentation);
}

} // namespace pagehost
