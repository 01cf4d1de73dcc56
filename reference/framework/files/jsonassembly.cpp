#include <files/jsonassembly.h>

#include <framework/cbaseobject.h>

#include <files/chunks.h>
#include <files/documentassets.h>
#include <files/groupcodec.h>
#include <files/jsonnames.h>
#include <files/lessoncheck.h>

#include <QtCore/QJsonDocument>

#include <algorithm>
#include <limits>

namespace pagehost {

using namespace jsonnames;

namespace {

// Members that every document and every page has.
constexpr int mostMembers = 2;
constexpr int mostPageMembers = 4;

const QString syntaxKey = QStringLiteral("IDS_FILE_SYNTAX");

bool isBase64Digit(char character)
{
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
           (character >= '0' && character <= '9') || character == '+' || character == '/';
}

/// Decodes damaged digits as zeros, so that the following bytes keep their positions.
QByteArray decoded(QByteArray base64, bool &isDamaged)
{
    const auto bytes = QByteArray::fromBase64Encoding(base64, QByteArray::AbortOnBase64DecodingErrors);
    if (bytes)
        return *bytes;
    isDamaged = true;
    while (base64.endsWith('='))
        base64.chop(1);
    std::replace_if(
        base64.begin(), base64.end(), [](char character) { return !isBase64Digit(character); }, 'A');
    return QByteArray::fromBase64(base64);
}

QByteArray decoded(const QJsonValue &base64, bool &isDamaged)
{
    isDamaged = isDamaged || !base64.isString();
    return decoded(base64.toString().toLatin1(), isDamaged);
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

// A number of things that a file claims to have. Damaged ones may be anything.
qint64 countOf(const QJsonValue &value)
{
    constexpr double mostCounted = 1e9;
    return qint64(qBound(0.0, value.toDouble(), mostCounted));
}

/// Recognises it by its contents: its name may be damaged.
bool isArrayOfChunks(const QJsonValue &value)
{
    const QJsonObject first = value.toArray().at(0).toObject();
    return first.size() == 2 && first.contains(QLatin1String(tagName)) && first.contains(QLatin1String(bytesName));
}

bool isObjectOfAssets(const QJsonValue &value)
{
    const QStringList keys = value.toObject().keys();
    return !keys.isEmpty() && std::all_of(keys.begin(), keys.end(),
                                          [](const QString &key) { return AssetStore::isKey(key.toLatin1()); });
}

/// The text after a key, to the end of the broken text; empty without such a key.
QByteArray behindKey(const QByteArray &text, const char *key)
{
    const QByteArray quoted = '"' + QByteArray(key) + '"';
    const int place = text.indexOf(quoted);
    JsonCursor cursor(text);
    cursor.setOffset(place + quoted.size());
    if (place < 0 || !cursor.take(':'))
        return {};
    cursor.peek();
    return text.mid(int(cursor.offset()));
}

/// The data of a lesson whose text is broken, for the player to read as far as possible.
QByteArray dataOfBroken(const QByteArray &text)
{
    QByteArray object = behindKey(text, dataName);
    if (object.startsWith('{'))
        return object;
    QByteArray digits = behindKey(text, bytesName);
    while (!digits.isEmpty() && !isBase64Digit(digits.at(digits.size() - 1)))
        digits.chop(1);
    bool isDamaged = true;
    return digits.isEmpty() ? text : decoded(digits.mid(digits.startsWith('"') ? 1 : 0), isDamaged);
}

} // namespace

JsonAssembly::JsonAssembly(const QByteArray &text, const ObjectFactory &factory, QVector<FileMessage> &messages)
    : m_text(text)
    , m_lines(text)
    , m_factory(factory)
    , m_messages(messages)
{
}

JsonAssembly::~JsonAssembly()
{
    qDeleteAll(m_objects);
}

/// False, with a message, for a value that is nested too deeply or contains an invalid string.
bool JsonAssembly::parse(const QByteArray &key, const QByteArray &value, QJsonValue &parsed)
{
    JsonProblem problem;
    parsed = parseJson(value, problem);
    if (problem.isThere) {
        reportSyntax(problem.text, offsetOf(value) + problem.offset);
        keepToldDamage('"' + key + "\": " + value);
    }
    return !problem.isThere;
}

void JsonAssembly::takeDocumentMember(const QByteArray &key, const QByteArray &text)
{
    QJsonValue value;
    if (!parse(key, text, value))
        return;
    if (key == formatName || key == versionName)
        ++m_knownMembers;
    if (key == formatName)
        m_hasFormat = value.toString() == QLatin1String(formatText);
    else if (key == versionName)
        readVersion(value);
    else if (key == pageCountName)
        m_pagesClaimed = countOf(value);
    else if (key == lessonCountName)
        m_lessonsClaimed = countOf(value);
    else if (key == assetsName || isObjectOfAssets(value))
        readAssets(key, value.toObject(), offsetOf(text));
    else if (AssetStore::isKey(key))
        readAsset(key, value, offsetOf(text));
    else if (key == chunksName || isArrayOfChunks(value))
        readChunks(key, value.toArray(), m_documentExtra, offsetOf(text));
    else
        m_documentExtra.members.insert(nameOf(key), value);
}

void JsonAssembly::takePageMember(const QByteArray &key, const QByteArray &text)
{
    QJsonValue value;
    if (!parse(key, text, value))
        return;
    const qint64 offset = offsetOf(text);
    if (key == pageName || key == widthName || key == heightName || key == backgroundName)
        ++m_knownPageMembers;
    if (key == widthName || key == heightName)
        readSide(key, value, offset);
    else if (key == backgroundName)
        readBackground(value.toObject(), offset);
    else if (key == objectCountName)
        m_objectsClaimed = countOf(value);
    else if (key == chunksName || isArrayOfChunks(value))
        readChunks(key, value.toArray(), m_pageExtra, offset);
    else if (key == pageName)
        m_hasPageNumber = true;
    else
        m_pageExtra.members.insert(nameOf(key), value);
}

void JsonAssembly::readVersion(const QJsonValue &version)
{
    if (!version.isDouble()) {
        reportType(versionName, -1);
        return;
    }
    m_version = version.toDouble();
}

void JsonAssembly::takeLesson(const QByteArray &text)
{
    JsonProblem problem;
    const QJsonObject json = parseJson(text, problem).toObject();
    const QJsonValue name = json.value(QLatin1String(nameName));
    const QJsonValue data = json.value(QLatin1String(dataName));
    const QJsonValue bytes = json.value(QLatin1String(bytesName));
    if (!name.isString() || !(data.isObject() || bytes.isString())) {
        keepBrokenLesson(text);
        return;
    }
    LessonData lesson{name.toString(), {}, json.value(QLatin1String(damagedName)).toBool()};
    lesson.data = data.isObject() ? QJsonDocument(data.toObject()).toJson(QJsonDocument::Compact)
                                  : decoded(bytes, lesson.isDamaged);
    addLesson(lesson, offsetOf(text));
}

void JsonAssembly::keepBrokenLesson(const QByteArray &text)
{
    JsonCursor cursor(behindKey(text, nameName));
    QByteArray name;
    JsonProblem problem;
    LessonData lesson{QString(), dataOfBroken(text), true};
    if (cursor.takeValue(name))
        lesson.name = parseJson(name, problem).toString();
    addLesson(lesson, offsetOf(text));
}

void JsonAssembly::addLesson(const LessonData &lesson, qint64 offset)
{
    m_lessons.append(lesson);
    if (isBroken(lesson))
        report(warning(QStringLiteral("IDS_FILE_LESSON_DAMAGED"), {lesson.name}), offset);
}

void JsonAssembly::beginPage(qint64 offset)
{
    finishPage();
    m_page = m_document->appendPage();
    m_pageSize = m_page->size();
    m_pageOffset = offset;
}

void JsonAssembly::readSide(const QByteArray &key, const QJsonValue &side, qint64 offset)
{
    QSizeF size = m_pageSize;
    key == widthName ? size.setWidth(side.toDouble()) : size.setHeight(side.toDouble());
    if (!isPageSize(size)) {
        report(warning(QStringLiteral("IDS_FILE_PAGE_DAMAGED")), offset);
        return;
    }
    m_pageSize = size;
    m_page->setSize(size);
}

void JsonAssembly::readBackground(const QJsonObject &json, qint64 offset)
{
    CPageBgProp background = m_page->background();
    if (!background.loadJson(json)) {
        report(warning(QStringLiteral("IDS_FILE_PAGE_DAMAGED")), offset);
        keepToldDamage(QJsonDocument(QJsonObject{{backgroundName, json}}).toJson(QJsonDocument::Compact));
    }
    m_page->setBackground(background);
}

void JsonAssembly::readChunks(const QByteArray &key, const QJsonArray &chunks, ExtraData &extra, qint64 offset)
{
    if (key != chunksName)
        reportReadDamage(offset);
    for (const QJsonValue &entry : chunks) {
        const QJsonObject chunk = entry.toObject();
        const QByteArray tag = chunk.value(QLatin1String(tagName)).toString().toLatin1();
        bool isDamaged = !chunks::isTag(tag);
        const QByteArray bytes = decoded(chunk.value(QLatin1String(bytesName)), isDamaged);
        if (isDamaged) {
            reportType(chunksName, offset);
            keepToldDamage(QJsonDocument(QJsonArray{entry}).toJson(QJsonDocument::Compact));
        } else {
            extra.chunks.append({tag, bytes});
        }
    }
    takeAssetChunks(extra, m_document->assets());
}

void JsonAssembly::readAssets(const QByteArray &key, const QJsonObject &assets, qint64 offset)
{
    if (key != assetsName)
        reportReadDamage(offset);
    for (auto asset = assets.begin(); asset != assets.end(); ++asset)
        readAsset(asset.key().toUtf8(), *asset, offset);
}

void JsonAssembly::readAsset(const QByteArray &key, const QJsonValue &bytes, qint64 offset)
{
    bool isDamaged = false;
    const QByteArray compressed = decoded(bytes, isDamaged);
    if (!isDamaged && m_document->assets().addCompressed(key, compressed))
        return;
    report(warning(QStringLiteral("IDS_FILE_ASSET_DAMAGED")), offset);
    keepToldDamage(QJsonDocument(QJsonObject{{nameOf(key), bytes}}).toJson(QJsonDocument::Compact));
}

void JsonAssembly::takeObject(const QByteArray &text)
{
    const qint64 start = offsetOf(text);
    if (!m_page) {
        beginPage(start);
        report(warning(QStringLiteral("IDS_FILE_PAGE_DAMAGED")), start);
    }
    ++m_objectNumber;
    ++m_objectCount;
    ObjectRecord record;
    m_problem = {};
    const bool isRecord = takeRecord(text, record);
    if (isRecord && (!record.data.isEmpty() || record.encoding == ObjectRecord::Payload)) {
        addRecord(record, start);
        return;
    }
    const FileMessage broken = warning(QStringLiteral("IDS_FILE_OBJECT_BROKEN"), {record.kindId});
    report(isRecord ? broken : warning(syntaxKey, {m_problem.text}), start + (isRecord ? 0 : m_problem.offset));
    // A placeholder keeps the text.
    record.encoding = ObjectRecord::Text;
    record.json = {};
    record.data = text.trimmed();
    FileMessage ignored;
    m_objects.append(m_factory.make(record, m_page, ignored));
}

bool JsonAssembly::takeRecord(const QByteArray &text, ObjectRecord &record)
{
    JsonCursor cursor(text);
    if (!cursor.take('{')) {
        m_problem = {true, QStringLiteral("\"{\" is missing"), cursor.offset()};
        return false;
    }
    if (cursor.take('}'))
        return true;
    do {
        QByteArray key;
        QByteArray value;
        if (!cursor.takeKey(key) || !cursor.takeValue(value)) {
            m_problem = {true, QStringLiteral("a member is broken"), cursor.offset()};
            return false;
        }
        if (!readRecordMember(key, value, record)) {
            m_problem.offset += value.constData() - text.constData();
            return false;
        }
    } while (cursor.take(','));
    if (cursor.take('}') && cursor.peek() == '\0' && cursor.atEnd())
        return true;
    m_problem = {true, QStringLiteral("\",\" or \"}\" is missing"), cursor.offset()};
    return false;
}

bool JsonAssembly::readRecordMember(const QByteArray &key, const QByteArray &text, ObjectRecord &record)
{
    const QJsonValue value = parseJson(text, m_problem);
    if (m_problem.isThere)
        return false;
    if (key == dataName && value.isObject()) {
        record.encoding = ObjectRecord::Json;
        record.data = text;
        record.json = value.toObject();
    } else if (key == kindName) {
        record.kindId = value.toString();
    } else if (key == idName) {
        const double id = value.toDouble();
        record.id = id >= 0 && id <= std::numeric_limits<quint32>::max() ? quint32(id) : 0;
    } else if (key == zoomName) {
        record.zoom = value.toDouble(1);
    } else if (key == damagedName) {
        record.isDamaged = record.isDamaged || value.toBool();
    } else if (key == placeName) {
        const QJsonObject place = value.toObject();
        const QPointF pos(place.value(QLatin1String(xName)).toDouble(),
                          place.value(QLatin1String(yName)).toDouble());
        record.place = ObjectRecord::Place{pos, place.value(QLatin1String(lockedName)).toBool()};
    } else if (key == streamName || key == textName || key == payloadName) {
        record.encoding = encodingOf(key);
        record.data = decoded(value, record.isDamaged);
    } else {
        keepDamaged('"' + key + "\": " + text, offsetOf(text));
    }
    return true;
}

void JsonAssembly::addRecord(const ObjectRecord &record, qint64 offset)
{
    FileMessage message = warning(QString());
    m_objects.append(m_factory.make(record, m_page, message));
    if (message.textKey == QLatin1String("IDS_FILE_OBJECT_MEMBERS"))
        keepToldDamage(record.data);
    if (message.textKey.isEmpty() && record.isDamaged)
        message.textKey = QStringLiteral("IDS_FILE_OBJECT_DAMAGED");
    if (!message.textKey.isEmpty())
        report(message, offset);
}

void JsonAssembly::keepDamaged(const QByteArray &text, qint64 offset)
{
    report(m_damaged.keep(text), offset);
}

void JsonAssembly::keepToldDamage(const QByteArray &text)
{
    m_damaged.keep(text);
}

void JsonAssembly::finishPage()
{
    if (!m_page) {
        m_damaged.moveTo(m_documentExtra);
        return;
    }
    // The name of a member may be the damaged part.
    if (m_knownPageMembers < mostPageMembers && !m_pageExtra.members.isEmpty())
        report(warning(QStringLiteral("IDS_FILE_PAGE_DAMAGED")), m_pageOffset);
    reportMissing(QStringLiteral("IDS_FILE_OBJECTS_MISSING"), m_objectsClaimed - m_objectNumber, m_pageOffset);
    const TakenGroups taken = takeGroups(m_pageExtra);
    if (taken.isDamaged)
        report(warning(QStringLiteral("IDS_FILE_GROUPS_DAMAGED")), m_pageOffset);
    if (!taken.unreadable.isEmpty())
        keepToldDamage(taken.unreadable);
    m_damaged.moveTo(m_pageExtra);
    m_page->setExtraData(m_pageExtra);
    m_page->appendObjects(m_objects);
    m_page->setGroups(taken.groups);
    m_pageExtra = {};
    m_objects.clear();
    m_objectNumber = 0;
    m_objectsClaimed = 0;
    m_knownPageMembers = 0;
}

std::unique_ptr<Document> JsonAssembly::finish()
{
    if (m_version > formatVersion) {
        m_messages = {error(QStringLiteral("IDS_FILE_NEWER_VERSION"),
                            {QString::number(m_version), QString::number(formatVersion)})};
        return nullptr;
    }
    if (!m_hasFormat && !m_hasPageNumber && m_objectCount == 0 && m_lessons.isEmpty()) {
        m_messages = {error(QStringLiteral("IDS_FILE_NO_DOCUMENT"))};
        return nullptr;
    }
    finishPage();
    if (m_document->pageCount() == 0 && m_lessons.isEmpty() && !m_messages.isEmpty()) {
        m_messages.append(error(QStringLiteral("IDS_FILE_NO_PAGE")));
        return nullptr;
    }
    if (m_knownMembers < mostMembers && !m_documentExtra.members.isEmpty())
        reportReadDamage(0);
    reportMissing(QStringLiteral("IDS_FILE_PAGES_MISSING"), m_pagesClaimed - m_document->pageCount(), 0);
    reportMissing(QStringLiteral("IDS_FILE_LESSONS_MISSING"), m_lessonsClaimed - m_lessons.size(), 0);
    m_document->setLessons(m_lessons);
    m_document->setExtraData(m_documentExtra);
    return std::move(m_document);
}

void JsonAssembly::reportMissing(const QString &textKey, qint64 missing, qint64 offset)
{
    if (missing > 0) {
        FileMessage message = warning(textKey, {QString::number(missing)});
        report(message, offset);
    }
}

void JsonAssembly::reportSyntax(const QString &problem, qint64 offset)
{
    report(warning(syntaxKey, {problem}), offset);
}

void JsonAssembly::reportType(const QByteArray &key, qint64 offset)
{
    report(warning(QStringLiteral("IDS_FILE_WRONG_TYPE"), {nameOf(key)}), offset);
}

void JsonAssembly::reportReadDamage(qint64 offset)
{
    report(warning(QStringLiteral("IDS_FILE_DAMAGED_READ")), offset);
}

void JsonAssembly::report(FileMessage message, qint64 offset)
{
    message.page = m_document->pageCount();
    message.object = m_objectNumber;
    message.offset = offset;
    if (offset >= 0)
        m_lines.locate(offset, message.line, message.column);
    addMessage(m_messages, message);
}

} // namespace pagehost
