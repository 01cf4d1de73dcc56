#include <files/jsonmarks.h>

#include <files/jsoncursor.h>
#include <files/jsonnames.h>
#include <files/jsonscan.h>

#include <algorithm>

namespace pagehost {

using namespace jsonnames;

namespace {

/// Reads text outside of entries, brace by brace and line by line.
class MarkFinder
{
public:
    explicit MarkFinder(const QByteArray &text)
        : m_text(text)
        , m_isOwnLayout(isInOwnLayout(text))
    {
    }

    QVector<JsonMark> find();

private:
    void search(qint64 from, qint64 to);
    void noteLine(qint64 start);
    void noteBrace(qint64 place);
    void note(JsonMark::Sort sort, qint64 start);
    qint64 lastLineOf(const JsonEntry &entry) const;
    QByteArray keyAt(qint64 place) const;
    bool isAloneOnLine(qint64 brace) const;

    QByteArray m_text;
    bool m_isOwnLayout;
    QVector<JsonMark> m_marks;
    qint64 m_line = 0;          ///< start of the present line
    QByteArray m_documentArray; ///< the last key with the indentation of the document's members
    QByteArray m_pageArray;     ///< and of a page's
};

QVector<JsonMark> MarkFinder::find()
{
    qint64 from = 0;
    const QVector<JsonEntry> entries = findEntries(m_text);
    for (const JsonEntry &entry : entries) {
        search(from, entry.start);
        const JsonMark::Sort sort = entry.sort == JsonEntry::Lesson ? JsonMark::Lesson : JsonMark::Object;
        m_marks.append({sort, true, entry.start, entry.end});
        m_line = std::max(m_line, lastLineOf(entry));
        from = entry.end;
    }
    search(from, m_text.size());
    return m_marks;
}

/// Start of the line on which the entry ends.
qint64 MarkFinder::lastLineOf(const JsonEntry &entry) const
{
    const char *const text = m_text.constData();
    qint64 place = entry.end;
    while (place > entry.start && text[place - 1] != '\n')
        --place;
    return place > entry.start ? place : 0;
}

void MarkFinder::search(qint64 from, qint64 to)
{
    for (qint64 place = from; place < to; ++place) {
        const char character = m_text.at(int(place));
        if (character == '{')
            noteBrace(place);
        else if (character == '\n' && m_isOwnLayout)
            noteLine(place + 1);
    }
}

/// The first member tells the kind even when the brace before it is damaged.
void MarkFinder::noteLine(qint64 start)
{
    const int indentation = indentationAt(m_text, start);
    const QByteArray key = keyAt(start + indentation);
    if (indentation == memberIndentation && !key.isEmpty()) {
        m_documentArray = key;
    } else if (indentation == pageMemberIndentation && !key.isEmpty()) {
        m_pageArray = key;
        if (key == pageName)
            note(JsonMark::Page, m_line);
        else if (key == nameName && m_documentArray == lessonsName)
            note(JsonMark::Lesson, m_line);
    } else if (indentation == objectMemberIndentation && key == kindName && m_pageArray == objectsName) {
        note(JsonMark::Object, m_line);
    }
    m_line = start;
}

void MarkFinder::noteBrace(qint64 place)
{
    const bool isOwn = m_isOwnLayout && isAloneOnLine(place);
    const int indentation = isOwn ? int(place - m_line) : 0;
    JsonCursor cursor(m_text);
    cursor.setOffset(place + 1);
    cursor.peek();
    const QByteArray key = keyAt(cursor.offset());
    const bool isObject = isOwn ? indentation == objectIndentation && m_pageArray == objectsName : key == kindName;
    if (key == pageName || (isOwn && indentation == pageIndentation && m_documentArray == pagesName))
        note(JsonMark::Page, place);
    else if (isObject)
        note(JsonMark::Object, place);
    else if (isOwn && indentation == lessonIndentation && m_documentArray == lessonsName)
        note(JsonMark::Lesson, place);
}

void MarkFinder::note(JsonMark::Sort sort, qint64 start)
{
    // A brace and the first member after it mark the same part.
    if (m_marks.isEmpty() || (start > m_marks.last().start && start >= m_marks.last().end))
        m_marks.append({sort, false, start, start});
    if (sort == JsonMark::Page)
        m_documentArray = pagesName;
}

/// The name of the member that begins there; empty without one.
QByteArray MarkFinder::keyAt(qint64 place) const
{
    JsonCursor cursor(m_text);
    cursor.setOffset(place);
    QByteArray key;
    return place < m_text.size() && m_text.at(int(place)) == '"' && cursor.takeKey(key) ? key : QByteArray();
}

bool MarkFinder::isAloneOnLine(qint64 brace) const
{
    return m_line + indentationAt(m_text, m_line) == brace && brace + 1 < m_text.size() &&
           m_text.at(int(brace) + 1) == '\n';
}

} // namespace

QVector<JsonMark> findMarks(const QByteArray &text)
{
    return MarkFinder(text).find();
}

bool isInOwnLayout(const QByteArray &text)
{
    return text.contains("\n    {\n      \"") || text.contains("\n        {\n          \"") ||
           text.contains("{\n  \"format\": ");
}

int indentationAt(const QByteArray &text, qint64 lineStart)
{
    qint64 place = lineStart;
    while (place < text.size() && text.at(int(place)) == ' ')
        ++place;
    return int(place - lineStart);
}

qint64 nextLine(const QByteArray &text, qint64 offset)
{
    const int lineBreak = text.indexOf('\n', int(offset));
    return lineBreak < 0 ? text.size() : lineBreak + 1;
}

} // namespace pagehost
