#include <files/documentcodec.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>

#include <files/chunks.h>
#include <files/damagedparts.h>
#include <files/documentassets.h>
#include <files/groupcodec.h>
#include <files/lessoncheck.h>
#include <files/objectrecordstream.h>

#include <QtCore/QJsonDocument>

namespace pagehost {

namespace {

/// Reads a document chunk by chunk. Chunks before the first page belong to the document, those after a page to that
/// page.
class BinaryReader
{
public:
    BinaryReader(const QByteArray &bytes, const ObjectFactory &factory, QVector<FileMessage> &messages)
        : m_hasSignature(chunks::Reader::hasSignature(bytes))
        , m_chunks(bytes)
        , m_factory(factory)
        , m_messages(messages)
    {
    }

    ~BinaryReader() { qDeleteAll(m_objects); }
    Q_DISABLE_COPY(BinaryReader)

    std::unique_ptr<Document> read();

private:
    void take(const chunks::Chunk &chunk);
    void takeVersion(const chunks::Chunk &chunk);
    void takeLesson(const chunks::Chunk &chunk);
    void takeAsset(const chunks::Chunk &chunk);
    void takePage(const chunks::Chunk &chunk);
    void takeObject(const chunks::Chunk &chunk);
    void takeExtra(const chunks::Chunk &chunk);
    void takeMembers(const chunks::Chunk &chunk);
    void finishPage();
    void takeGap();
    void reportMissing();
    void keepDamaged(const QByteArray &bytes, qint64 offset);
    void report(FileMessage message, qint64 offset);

    bool m_hasSignature;
    chunks::Reader m_chunks;
    const ObjectFactory &m_factory;
    QVector<FileMessage> &m_messages;
    std::unique_ptr<Document> m_document = std::make_unique<Document>();
    Page *m_page = nullptr;
    ExtraData m_extra; ///< of the document, then of the present page
    DamagedParts m_damaged;
    QVector<CBaseObject *> m_objects; ///< of the present page
    QVector<LessonData> m_lessons;
    quint32 m_version = 0;
    qint64 m_objectsClaimed = 0; ///< by the present page
    qint64 m_objectsSeen = 0;
    qint64 m_pagesClaimed = 0;
    qint64 m_lessonsClaimed = 0;
    bool m_isComplete = false;
};

std::unique_ptr<Document> BinaryReader::read()
{
    const CurrentDocumentScope scope(m_document.get());
    chunks::Chunk chunk;
    while (m_chunks.next(chunk)) {
        takeGap();
        take(chunk);
        if (m_version > formatVersion) {
            m_messages = {error(QStringLiteral("IDS_FILE_NEWER_VERSION"),
                                {QString::number(m_version), QString::number(formatVersion)})};
            return nullptr;
        }
    }
    takeGap();
    finishPage();
    if (m_document->pageCount() == 0 && m_lessons.isEmpty() && !m_isComplete) {
        m_messages = {
            error(m_hasSignature ? QStringLiteral("IDS_FILE_NO_PAGE") : QStringLiteral("IDS_FILE_NO_DOCUMENT"))};
        return nullptr;
    }
    reportMissing();
    m_document->setLessons(m_lessons);
    return std::move(m_document);
}

void BinaryReader::take(const chunks::Chunk &chunk)
{
    if (chunk.tag == chunks::objectTag)
        takeObject(chunk);
    else if (chunk.tag == chunks::pageTag)
        takePage(chunk);
    else if (chunk.tag == chunks::lessonTag)
        takeLesson(chunk);
    else if (chunk.tag == chunks::assetTag)
        takeAsset(chunk);
    else if (chunk.tag == chunks::versionTag)
        takeVersion(chunk);
    else if (chunk.tag == chunks::endTag)
        m_isComplete = !chunk.isDamaged;
    else
        takeExtra(chunk);
}

void BinaryReader::takeVersion(const chunks::Chunk &chunk)
{
    if (chunk.isDamaged) {
        keepDamaged(chunk.payload, chunk.offset);
        return;
    }
    QDataStream in(chunk.payload);
    quint32 pages = 0;
    quint32 lessons = 0;
    in >> m_version >> pages >> lessons;
    m_pagesClaimed = pages;
    m_lessonsClaimed = lessons;
}

/// A damaged lesson keeps its bytes, of which the player uses as much as possible.
void BinaryReader::takeLesson(const chunks::Chunk &chunk)
{
    QDataStream in(chunk.payload);
    in.setVersion(chunks::streamVersion);
    LessonData lesson;
    in >> lesson.name >> lesson.data;
    const bool isReadable = in.status() == QDataStream::Ok;
    if (!isReadable)
        lesson.data = QByteArray(chunk.payload.constData(), chunk.payload.size());
    else if (!in.atEnd())
        in >> lesson.isDamaged;
    lesson.isDamaged = lesson.isDamaged || chunk.isDamaged || !isReadable;
    m_lessons.append(lesson);
    if (isBroken(lesson))
        report(warning(QStringLiteral("IDS_FILE_LESSON_DAMAGED"), {lesson.name}), chunk.offset);
}

/// Its key tells whether it is what was saved.
void BinaryReader::takeAsset(const chunks::Chunk &chunk)
{
    const QByteArray key = chunk.payload.left(AssetStore::keySize);
    if (m_document->assets().addCompressed(key, chunk.payload.mid(AssetStore::keySize))) {
        if (chunk.isDamaged)
            report(warning(QStringLiteral("IDS_FILE_DAMAGED_READ")), chunk.offset);
        return;
    }
    report(warning(QStringLiteral("IDS_FILE_ASSET_DAMAGED")), chunk.offset);
    m_damaged.keep(chunk.payload);
}

void BinaryReader::takePage(const chunks::Chunk &chunk)
{
    finishPage();
    QDataStream in(chunk.payload);
    in.setVersion(chunks::streamVersion);
    double width = 0;
    double height = 0;
    quint32 objects = 0;
    in >> width >> height >> objects;
    const QSizeF size(width, height);
    m_page = m_document->appendPage(isPageSize(size) ? size : Document::defaultPageSize());
    CPageBgProp background = m_page->background();
    const bool hasBackground = background.load(in);
    if (hasBackground)
        m_page->setBackground(background);
    m_objectsClaimed = chunk.isDamaged ? 0 : objects;
    if (chunk.isDamaged || !isPageSize(size) || !hasBackground) {
        report(warning(QStringLiteral("IDS_FILE_PAGE_DAMAGED")), chunk.offset);
        m_damaged.keep(chunk.payload);
    }
}

void BinaryReader::takeObject(const chunks::Chunk &chunk)
{
    ++m_objectsSeen;
    if (!m_page) {
        finishPage();
        report(warning(QStringLiteral("IDS_FILE_PAGE_DAMAGED")), chunk.offset);
        m_page = m_document->appendPage();
    }
    ObjectRecord record = recordOf(chunk.payload);
    record.isDamaged = record.isDamaged || chunk.isDamaged;
    FileMessage message = warning(QString());
    m_objects.append(m_factory.make(record, m_page, message));
    if (message.textKey.isEmpty() && chunk.isDamaged)
        message.textKey = QStringLiteral("IDS_FILE_OBJECT_DAMAGED");
    if (!message.textKey.isEmpty())
        report(message, chunk.offset);
}

void BinaryReader::takeExtra(const chunks::Chunk &chunk)
{
    if (chunk.isDamaged) {
        keepDamaged(chunk.payload, chunk.offset);
        return;
    }
    if (chunk.tag == chunks::membersTag) {
        takeMembers(chunk);
        return;
    }
    const QByteArray data(chunk.payload.constData(), chunk.payload.size());
    m_extra.chunks.append({chunk.tag, data});
}

void BinaryReader::takeMembers(const chunks::Chunk &chunk)
{
    const QJsonDocument members = QJsonDocument::fromJson(chunk.payload);
    if (!members.isObject())
        keepDamaged(chunk.payload, chunk.offset);
    m_extra.members = members.object();
    takeAssetMembers(m_extra, m_document->assets());
}

/// Of the document before the first page.
void BinaryReader::finishPage()
{
    const TakenGroups taken = m_page ? takeGroups(m_extra) : TakenGroups();
    if (taken.isDamaged)
        report(warning(QStringLiteral("IDS_FILE_GROUPS_DAMAGED")), -1);
    if (!taken.unreadable.isEmpty())
        m_damaged.keep(taken.unreadable);
    m_damaged.moveTo(m_extra);
    if (!m_page) {
        m_document->setExtraData(m_extra);
        m_extra = {};
        return;
    }
    m_page->setExtraData(m_extra);
    m_page->appendObjects(m_objects);
    m_page->setGroups(taken.groups);
    if (m_objectsSeen < m_objectsClaimed) {
        report(warning(QStringLiteral("IDS_FILE_OBJECTS_MISSING"),
                       {QString::number(m_objectsClaimed - m_objectsSeen)}),
               -1);
    }
    m_extra = {};
    m_objects.clear();
    m_objectsSeen = 0;
    m_objectsClaimed = 0;
}

/// Takes the bytes before a chunk or the end that are not a chunk: one with a damaged header, or anything else.
void BinaryReader::takeGap()
{
    QByteArray gap = m_chunks.gap();
    const qint64 start = m_chunks.gapStart();
    if (gap.isEmpty())
        return;
    if (start == 0)
        gap.remove(0, chunks::signatureSize);
    chunks::Chunk chunk;
    chunk.offset = start;
    if (gap.isEmpty()) {
        report(warning(QStringLiteral("IDS_FILE_DAMAGED_READ")), start);
    } else if (chunks::readDamagedHeader(gap, chunk)) {
        report(warning(QStringLiteral("IDS_FILE_DAMAGED_READ")), start);
        take(chunk);
    } else {
        keepDamaged(gap, start);
    }
}

void BinaryReader::keepDamaged(const QByteArray &bytes, qint64 offset)
{
    report(m_damaged.keep(bytes), offset);
}

void BinaryReader::reportMissing()
{
    const qint64 missing = m_pagesClaimed - m_document->pageCount();
    if (missing > 0)
        addMessage(m_messages, warning(QStringLiteral("IDS_FILE_PAGES_MISSING"), {QString::number(missing)}));
    const qint64 missingLessons = m_lessonsClaimed - m_lessons.size();
    if (missingLessons > 0) {
        addMessage(m_messages,
                   warning(QStringLiteral("IDS_FILE_LESSONS_MISSING"), {QString::number(missingLessons)}));
    }
    if (!m_isComplete)
        addMessage(m_messages, warning(QStringLiteral("IDS_FILE_ENDS_EARLY")));
}

void BinaryReader::report(FileMessage message, qint64 offset)
{
    message.page = m_document->pageCount();
    message.object = int(m_objectsSeen);
    message.offset = offset;
    addMessage(m_messages, message);
}

} // namespace

std::unique_ptr<Document> binaryformat::read(const QByteArray &bytes, const ObjectFactory &factory,
                                             QVector<FileMessage> &messages)
{
    return BinaryReader(bytes, factory, messages).read();
}

} // namespace pagehost
