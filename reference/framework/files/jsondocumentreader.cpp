#include <files/jsondocumentreader.h>

#include <framework/cbaseobject.h>

#include <files/chunks.h>
#include <files/jsonnames.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <limits>

namespace pagehost {

using namespace jsonnames;

namespace {

/// How much text may be gone over in vain, as a multiple of the file: damage nested in damage gets no more time.
constexpr qint64 mostVainReading = 16;

const QString syntaxKey = QStringLiteral("IDS_FILE_SYNTAX");

QByteArray decoded(const QJsonValue &base64)
{
    return QByteArray::fromBase64(base64.toString().toLatin1());
}

ObjectRecord::Encoding encodingOf(const QByteArray &key)
{
    return key == streamName    ? ObjectRecord::Stream
           : key == payloadName ? ObjectRecord::Payload
                                : ObjectRecord::Text;
}

// Without its size a text would end at a character U+0000.
QString nameOf(const QByteArray &key)
{
    return QString::fromUtf8(key.constData(), key.size());
}

} // namespace

JsonDocumentReader::JsonDocumentReader(const QByteArray &text, const ObjectFactory &factory,
                                       QVector<FileMessage> &messages)
    : m_text(text)
    , m_cursor(text)
    , m_lines(text)
    , m_factory(factory)
    , m_messages(messages)
{
}

JsonDocumentReader::~JsonDocumentReader()
{
    qDeleteAll(m_objects);
}

std::unique_ptr<Document> JsonDocumentReader::read()
{
    const CurrentDocumentScope scope(m_document.get());
    m_cursor.take('{');
    takeMembers([this](const QByteArray &key) { takeDocumentMember(key); });
    takeWhatIsLeft();
    finishPage();
    if (m_isNewer) {
        return nullptr;
    }
    if (!m_hasFormat && m_objectCount == 0) {
        m_messages = {error(QStringLiteral("IDS_FILE_NO_DOCUMENT"))};
        return nullptr;
    }
    if (m_document->pageCount() == 0 && m_isLost) {
        m_messages.append(error(QStringLiteral("IDS_FILE_NO_PAGE")));
        return nullptr;
    }
    m_document->setLessons(m_lessons);
    m_document->setExtraData(m_documentExtra);
    return std::move(m_document);
}

template<typename Function> void JsonDocumentReader::takeMembers(Function takeMember)
{
    if (m_cursor.take('}')) {
        return;
    }
    do {
        QByteArray key;
        if (!m_cursor.takeKey(key)) {
            stumble(QStringLiteral("a member's name is missing"));
            return;
        }
        takeMember(key);
        if (m_isLost) {
            return;
        }
    } while (m_cursor.take(','));
    if (!m_cursor.take('}')) {
        stumble(QStringLiteral("\",\" or \"}\" is missing"));
    }
}

/// Of an array that should stand under `name`.
template<typename Function>
void JsonDocumentReader::takeElements(const QByteArray &key, const char *name, Function takeElement)
{
    if (key != name) {
        report(warning(QStringLiteral("IDS_FILE_DAMAGED_PART")), m_cursor.offset());
    }
    if (!m_cursor.take('[')) {
        takeValue();
        reportType(name);
        return;
    }
    takeElement();
}

/// Whatever its name has become: whether an array comes next whose elements begin with this member.
bool JsonDocumentReader::isArrayOf(const char *firstMember) const
{
    JsonCursor ahead(m_cursor);
    QByteArray key;
    return ahead.take('[') && ahead.take('{') && ahead.takeKey(key) && key == firstMember;
}

void JsonDocumentReader::takeDocumentMember(const QByteArray &key)
{
    if (key == pagesName || isArrayOf(pageName)) {
        takeElements(key, pagesName, [this] { takePages(); });
        return;
    }
    const QJsonValue value = takeValue();
    if (key == formatName) {
        m_hasFormat = value.toString() == QLatin1String(formatText);
    } else if (key == versionName) {
        readVersion(value);
    } else if (key == lessonsName) {
        const QJsonArray lessons = value.toArray();
        for (const QJsonValue &lesson : lessons) {
            readLesson(lesson.toObject());
        }
    } else if (key == chunksName) {
        const QJsonArray chunks = value.toArray();
        for (const QJsonValue &chunk : chunks) {
            readChunk(chunk.toObject(), m_documentExtra);
        }
    } else if (!value.isUndefined()) {
        m_documentExtra.members.insert(nameOf(key), value);
    }
}

void JsonDocumentReader::takePages()
{
    while (!m_cursor.take(']')) {
        if (m_cursor.peek() == '{') {
            takePage();
        } else {
            stumble(QStringLiteral("a page is missing"));
        }
        if (m_isLost && !m_cursor.isPageMarker(m_cursor.offset())) {
            return;
        }
        m_isLost = false;
        m_cursor.take(',');
    }
}

void JsonDocumentReader::takePage()
{
    finishPage();
    m_page = m_document->appendPage();
    m_pageSize = m_page->size();
    m_cursor.take('{');
    takeMembers([this](const QByteArray &key) { takePageMember(key); });
}

void JsonDocumentReader::takePageMember(const QByteArray &key)
{
    if (key == objectsName || isArrayOf(kindName)) {
        takeElements(key, objectsName, [this] { takeObjects(); });
        return;
    }
    const QJsonValue value = takeValue();
    if (key == widthName || key == heightName) {
        readSide(key, value);
    } else if (key == backgroundName) {
        readBackground(value.toObject());
    } else if (key == chunksName) {
        const QJsonArray chunks = value.toArray();
        for (const QJsonValue &chunk : chunks) {
            readChunk(chunk.toObject(), m_pageExtra);
        }
    } else if (key != pageName && !value.isUndefined()) {
        m_pageExtra.members.insert(nameOf(key), value);
    }
}

void JsonDocumentReader::takeObjects()
{
    while (!m_cursor.take(']')) {
        if (m_cursor.peek() == '{') {
            takeObject();
        } else {
            stumble(QStringLiteral("an object is missing"));
        }
        if (m_isLost && (m_cursor.atEnd() || m_cursor.isPageMarker(m_cursor.offset()))) {
            return;
        }
        m_isLost = false;
        m_cursor.take(',');
    }
}

void JsonDocumentReader::takeObject()
{
    const qint64 start = m_cursor.offset();
    ++m_objectNumber;
    ++m_objectCount;
    ObjectRecord record;
    m_problem = {};
    const bool isRecord = takeRecord(record);
    if (isRecord && (!record.data.isEmpty() || record.encoding == ObjectRecord::Payload)) {
        addObject(record, start);
        return;
    }
    const FileMessage broken = warning(QStringLiteral("IDS_FILE_OBJECT_BROKEN"), {record.kindId});
    report(isRecord ? broken : warning(syntaxKey, {m_problem.text}), isRecord ? start : m_problem.offset);
    keepBroken(start, record);
}

bool JsonDocumentReader::takeRecord(ObjectRecord &record)
{
    m_cursor.take('{');
    if (m_cursor.take('}')) {
        return true;
    }
    do {
        QByteArray key;
        QByteArray text;
        if (!m_cursor.takeKey(key) || !m_cursor.takeValue(text)) {
            m_problem = {true, QStringLiteral("a member is broken"), m_cursor.offset()};
            return false;
        }
        if (!readRecordMember(key, text, record)) {
            m_problem.offset += text.constData() - m_text.constData();
            return false;
        }
    } while (m_cursor.take(','));
    if (m_cursor.take('}')) {
        return true;
    }
    m_problem = {true, QStringLiteral("\",\" or \"}\" is missing"), m_cursor.offset()};
    return false;
}

bool JsonDocumentReader::readRecordMember(const QByteArray &key, const QByteArray &text, ObjectRecord &record)
{
    if (key == dataName) {
        record.encoding = ObjectRecord::Json;
        record.data = text;
        record.json = parseJson(text, m_problem).toObject();
        return !m_problem.isThere;
    }
    const QJsonValue value = parseJson(text, m_problem);
    if (m_problem.isThere) {
        return false;
    }
    if (key == kindName) {
        record.kindId = value.toString();
    } else if (key == idName) {
        const double id = value.toDouble();
        record.id = id >= 0 && id <= std::numeric_limits<quint32>::max() ? quint32(id) : 0;
    } else if (key == zoomName) {
        record.zoom = value.toDouble(1);
    } else if (key == damagedName) {
        record.isDamaged = value.toBool();
    } else if (key == placeName) {
        const QJsonObject place = value.toObject();
        const QPointF pos(place.value(QLatin1String(xName)).toDouble(),
                          place.value(QLatin1String(yName)).toDouble());
        record.place = ObjectRecord::Place{pos, place.value(QLatin1String(lockedName)).toBool()};
    } else if (key == streamName || key == textName || key == payloadName) {
        record.encoding = encodingOf(key);
        record.data = decoded(value);
    }
    return true;
}

/// What was to be an object becomes a placeholder that keeps its text as far as it can be told.
void JsonDocumentReader::keepBroken(qint64 start, ObjectRecord record)
{
    m_cursor.setOffset(start);
    goOnBehind(start);
    record.encoding = ObjectRecord::Text;
    record.json = {};
    record.data = m_text.mid(int(start), int(m_cursor.offset() - start)).trimmed();
    FileMessage ignored;
    m_objects.append(m_factory.make(record, ignored));
}

/// Puts the cursor behind the value that begins at `start`, or on the next marker when the value does not end
/// before that one.
void JsonDocumentReader::goOnBehind(qint64 start)
{
    QByteArray whole;
    const bool ends = m_cursor.takeValue(whole);
    const qint64 end = ends ? m_cursor.offset() : m_text.size();
    const qint64 marker = m_cursor.findMarker(start + 1);
    m_vainReading += end - start;
    if (m_vainReading > mostVainReading * m_text.size()) {
        m_isLost = true;
        m_cursor.setOffset(m_text.size());
    } else if (!ends || (marker >= 0 && marker < end)) {
        m_isLost = true;
        m_cursor.setOffset(marker >= 0 ? marker : m_text.size());
    }
}

void JsonDocumentReader::addObject(const ObjectRecord &record, qint64 offset)
{
    FileMessage message = warning(QString());
    m_objects.append(m_factory.make(record, message));
    if (!message.textKey.isEmpty()) {
        report(message, offset);
    }
}

/// Pages and objects behind a place where the text was broken.
void JsonDocumentReader::takeWhatIsLeft()
{
    while (m_isLost && !m_cursor.atEnd()) {
        m_isLost = false;
        if (m_cursor.isPageMarker(m_cursor.offset())) {
            takePages();
        } else {
            if (!m_page) {
                m_page = m_document->appendPage();
                m_pageSize = m_page->size();
            }
            takeObjects();
        }
        if (!m_isLost) {
            const qint64 marker = m_cursor.findMarker(m_cursor.offset());
            m_isLost = true;
            m_cursor.setOffset(marker >= 0 ? marker : m_text.size());
        }
    }
}

QJsonValue JsonDocumentReader::takeValue()
{
    m_cursor.peek();
    const qint64 start = m_cursor.offset();
    QByteArray text;
    if (!m_cursor.takeValue(text)) {
        stumble(QStringLiteral("a value is broken"));
        return QJsonValue(QJsonValue::Undefined);
    }
    JsonProblem problem;
    const QJsonValue value = parseJson(text, problem);
    if (problem.isThere) {
        report(warning(syntaxKey, {problem.text}), start + problem.offset);
        m_cursor.setOffset(start);
        goOnBehind(start);
    }
    return value;
}

void JsonDocumentReader::stumble(const QString &why)
{
    m_cursor.peek();
    report(warning(syntaxKey, {m_cursor.atEnd() ? QStringLiteral("the text ends too early") : why}),
           m_cursor.offset());
    const qint64 marker = m_cursor.findMarker(m_cursor.offset());
    m_vainReading += (marker >= 0 ? marker : m_text.size()) - m_cursor.offset();
    m_isLost = true;
    m_cursor.setOffset(marker >= 0 ? marker : m_text.size());
}

void JsonDocumentReader::readVersion(const QJsonValue &version)
{
    if (!version.isDouble()) {
        reportType(versionName);
        return;
    }
    if (version.toDouble() <= formatVersion) {
        return;
    }
    m_messages = {error(QStringLiteral("IDS_FILE_NEWER_VERSION"),
                        {QString::number(version.toDouble()), QString::number(formatVersion)})};
    m_isNewer = true;
    m_isLost = true;
    m_cursor.setOffset(m_text.size());
}

void JsonDocumentReader::readLesson(const QJsonObject &lesson)
{
    const QJsonValue name = lesson.value(QLatin1String(nameName));
    const QJsonValue data = lesson.value(QLatin1String(dataName));
    const QJsonValue bytes = lesson.value(QLatin1String(bytesName));
    if (!name.isString() || !(data.isObject() || bytes.isString())) {
        report(warning(QStringLiteral("IDS_FILE_LESSON_BROKEN")), m_cursor.offset());
        return;
    }
    const QByteArray text = QJsonDocument(data.toObject()).toJson(QJsonDocument::Compact);
    m_lessons.append({name.toString(), data.isObject() ? text : decoded(bytes)});
}

void JsonDocumentReader::readChunk(const QJsonObject &chunk, ExtraData &extra)
{
    const QByteArray tag = chunk.value(QLatin1String(tagName)).toString().toLatin1();
    if (!chunks::isTag(tag)) {
        reportType(chunksName);
        return;
    }
    extra.chunks.append({tag, decoded(chunk.value(QLatin1String(bytesName)))});
}

void JsonDocumentReader::readBackground(const QJsonObject &json)
{
    CPageBgProp background = m_page->background();
    if (!background.loadJson(json)) {
        report(warning(QStringLiteral("IDS_FILE_PAGE_DAMAGED")), m_cursor.offset());
    }
    m_page->setBackground(background);
}

void JsonDocumentReader::readSide(const QByteArray &key, const QJsonValue &side)
{
    QSizeF size = m_pageSize;
    key == widthName ? size.setWidth(side.toDouble()) : size.setHeight(side.toDouble());
    if (!isPageSize(size)) {
        report(warning(QStringLiteral("IDS_FILE_PAGE_DAMAGED")), m_cursor.offset());
        return;
    }
    m_pageSize = size;
    m_page->setSize(size);
}

void JsonDocumentReader::finishPage()
{
    if (!m_page) {
        return;
    }
    m_page->setExtraData(m_pageExtra);
    m_page->appendObjects(m_objects);
    m_pageExtra = {};
    m_objects.clear();
    m_objectNumber = 0;
}

void JsonDocumentReader::reportType(const QByteArray &key)
{
    if (!m_isLost) {
        report(warning(QStringLiteral("IDS_FILE_WRONG_TYPE"), {nameOf(key)}), m_cursor.offset());
    }
}

void JsonDocumentReader::report(FileMessage message, qint64 offset)
{
    message.page = m_document->pageCount();
    message.object = m_objectNumber;
    message.offset = offset;
    m_lines.locate(offset, message.line, message.column);
    addMessage(m_messages, message);
}

std::unique_ptr<Document> jsonformat::read(const QByteArray &bytes, const ObjectFactory &factory,
                                           QVector<FileMessage> &messages)
{
    return JsonDocumentReader(bytes, factory, messages).read();
}

} // namespace pagehost
