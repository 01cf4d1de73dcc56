#include <files/jsondocumentreader.h>

#include <files/jsonnames.h>
#include <files/jsonsalvage.h>
#include <files/jsonscan.h>

#include <algorithm>

namespace pagehost {

using namespace jsonnames;

JsonDocumentReader::JsonDocumentReader(const QByteArray &text, JsonAssembly &assembly)
    : m_text(text)
    , m_cursor(text)
    , m_assembly(assembly)
{
}

bool JsonDocumentReader::read()
{
    takeMembers(&JsonDocumentReader::takeDocumentMember);
    return m_isRegular;
}

void JsonDocumentReader::takeMembers(TakeMember takeMember)
{
    m_cursor.take('{');
    if (m_cursor.take('}'))
        return;
    do {
        QByteArray key;
        m_cursor.peek();
        const qint64 start = m_cursor.offset();
        if (m_cursor.takeKey(key))
            (this->*takeMember)(key);
        else
            skipBrokenKey(start);
    } while (m_cursor.take(','));
    m_cursor.take('}');
}

/// A key with an invalid escape.
void JsonDocumentReader::skipBrokenKey(qint64 start)
{
    takeValue();
    m_cursor.take(':');
    takeValue();
    m_assembly.reportSyntax(QStringLiteral("a member's name is broken"), start);
    m_assembly.keepToldDamage(m_text.mid(int(start), int(m_cursor.offset() - start)));
}

QByteArray JsonDocumentReader::takeValue()
{
    QByteArray value;
    m_cursor.takeValue(value);
    return value;
}

/// Whether an array follows whose elements begin with this member, whatever its name has become.
bool JsonDocumentReader::isArrayOf(const char *firstMember) const
{
    JsonCursor ahead(m_cursor);
    QByteArray key;
    return ahead.take('[') && ahead.take('{') && ahead.takeKey(key) && key == firstMember;
}

bool JsonDocumentReader::isArrayOfLessons() const
{
    JsonCursor ahead(m_cursor);
    JsonScan scan(m_text);
    if (!isArrayOf(nameName) || !ahead.take('[') || !scan.takeValue(ahead.offset()))
        return false;
    const QVector<JsonEntry> entries = scan.entries();
    return entries.size() == 1 && entries[0].sort == JsonEntry::Lesson && entries[0].end == scan.end();
}

void JsonDocumentReader::takeDocumentMember(const QByteArray &key)
{
    if (key == pagesName || isArrayOf(pageName))
        takeArray(key, pagesName, &JsonDocumentReader::takePage);
    else if (key == lessonsName || isArrayOfLessons())
        takeArray(key, lessonsName, &JsonDocumentReader::takeLesson);
    else
        m_assembly.takeDocumentMember(key, takeValue());
}

void JsonDocumentReader::takePageMember(const QByteArray &key)
{
    if (key == objectsName || isArrayOf(kindName))
        takeArray(key, objectsName, &JsonDocumentReader::takeObject);
    else
        m_assembly.takePageMember(key, takeValue());
}

/// An array that belongs under `name`.
void JsonDocumentReader::takeArray(const QByteArray &key, const char *name, TakeElement takeElement)
{
    m_cursor.peek();
    const qint64 start = m_cursor.offset();
    if (key != name)
        m_assembly.reportReadDamage(start);
    if (!m_cursor.take('[')) {
        m_assembly.reportType(name, start);
        m_assembly.keepToldDamage('"' + key + "\": " + takeValue());
        return;
    }
    if (m_cursor.take(']'))
        return;
    do {
        m_cursor.peek();
        const qint64 element = m_cursor.offset();
        const QByteArray text = takeValue();
        if (text.startsWith('{'))
            (this->*takeElement)(text);
        else
            m_assembly.keepDamaged(text, element);
    } while (m_cursor.take(','));
    m_cursor.take(']');
}

/// Whether the value contains an object or a lesson.
bool JsonDocumentReader::holdsOthers(const QByteArray &text) const
{
    JsonScan scan(text);
    scan.takeValue(0);
    const QVector<JsonEntry> entries = scan.entries();
    return !entries.isEmpty() && entries[0].start > 0;
}

void JsonDocumentReader::takeLesson(const QByteArray &text)
{
    m_isRegular = m_isRegular && !holdsOthers(text);
    m_assembly.takeLesson(text);
}

void JsonDocumentReader::takeObject(const QByteArray &text)
{
    m_isRegular = m_isRegular && !holdsOthers(text);
    m_assembly.takeObject(text);
}

void JsonDocumentReader::takePage(const QByteArray &text)
{
    const qint64 end = m_cursor.offset();
    m_cursor.setOffset(end - text.size());
    m_assembly.beginPage(m_cursor.offset());
    takeMembers(&JsonDocumentReader::takePageMember);
    m_cursor.setOffset(end);
}

namespace {

/// Where the text stops being JSON; -1 when all of it is valid.
qint64 brokenPlace(const QByteArray &text)
{
    JsonScan scan(text);
    JsonCursor cursor(text);
    const bool isWhole = cursor.peek() == '{' && scan.takeValue(cursor.offset());
    cursor.setOffset(isWhole ? scan.end() : scan.failure());
    cursor.peek();
    return isWhole && cursor.atEnd() ? -1 : cursor.offset();
}

} // namespace

std::unique_ptr<Document> jsonformat::read(const QByteArray &bytes, const ObjectFactory &factory,
                                           QVector<FileMessage> &messages)
{
    const qint64 broken = brokenPlace(bytes);
    if (broken < 0) {
        JsonAssembly assembly(bytes, factory, messages);
        if (JsonDocumentReader(bytes, assembly).read())
            return assembly.finish();
        messages.clear();
    }
    JsonAssembly assembly(bytes, factory, messages);
    JsonSalvage(bytes, assembly).read();
    if (messages.isEmpty())
        assembly.reportReadDamage(std::max<qint64>(broken, 0));
    return assembly.finish();
}

} // namespace pagehost
