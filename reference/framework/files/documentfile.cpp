#include <pagehost/documentfile.h>

#include <framework/cbaseobject.h>
#include <framework/ipspage.h>

#include <pagehost/objectid.h>
#include <pagehost/page.h>

#include <files/chunks.h>
#include <files/documentassets.h>
#include <files/documentcodec.h>
#include <files/durablefile.h>
#include <files/groupcodec.h>
#include <files/objectrecordstream.h>
#include <files/placeholderobject.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <utility>

namespace pagehost {

namespace {

FileMessage writeProblem(const WriteResult &result, const QString &file)
{
    return result.outcome == WriteResult::DiskFull
               ? error(QStringLiteral("IDS_FILE_DISK_FULL"), {file})
               : error(QStringLiteral("IDS_FILE_CANNOT_WRITE"), {file, result.problem});
}

SaveResult saveResult(const WriteResult &written, const QString &file)
{
    SaveResult result;
    result.saved = written.outcome == WriteResult::Written;
    result.isConflict = written.outcome == WriteResult::Conflict;
    result.stamp = written.stamp;
    if (!result.saved)
        result.problem = writeProblem(written, file);
    return result;
}

/// The start of a file may be the damaged part.
DocumentFormat formatOf(const QByteArray &bytes)
{
    return chunks::Reader::hasSignature(bytes) || chunks::Reader(bytes).hasKnownChunk() ? DocumentFormat::Binary
                                                                                        : DocumentFormat::Json;
}

AssetStore assetsOf(const QByteArray &bytes)
{
    AssetStore assets;
    chunks::Reader reader(bytes);
    chunks::Chunk chunk;
    while (reader.next(chunk))
        if (chunk.tag == chunks::assetTag)
            assets.addCompressed(chunk.payload.left(AssetStore::keySize), chunk.payload.mid(AssetStore::keySize));
    return assets;
}

/// The groups that objects of one page have among themselves.
ObjectGroups groupsAmong(const QVector<CBaseObject *> &objects)
{
    const auto *page = objects.isEmpty() ? nullptr : dynamic_cast<const Page *>(objects.first()->GetPage());
    return page ? Grouping(page->groups(), objects).groups() : ObjectGroups();
}

/// The groups in the bytes, of the copies, which get numbers. `originals` are the numbers in the bytes.
ObjectGroups groupsOfCopies(const QByteArray &bytes, const QVector<CBaseObject *> &copies,
                            const QVector<quint32> &originals, const Document &document)
{
    ObjectGroups groups;
    chunks::Reader reader(bytes);
    chunks::Chunk chunk;
    while (reader.next(chunk)) {
        ObjectGroup group;
        if (chunk.tag == chunks::groupTag && readGroup(chunk.payload, group))
            groups.append(group);
    }
    if (groups.isEmpty())
        return groups;
    ensureObjectIds(copies, document);
    QHash<quint32, quint32> numbers;
    for (int i = 0; i < copies.size(); ++i)
        numbers.insert(originals.at(i), objectId(copies.at(i)));
    numbers.insert(0, 0);
    for (ObjectGroup &group : groups)
        for (quint32 &member : group.members)
            member = numbers.value(member);
    return normalized(groups);
}

} // namespace

DocumentFormat documentFormatOf(const QString &fileName)
{
    return fileName.endsWith(QLatin1String(".board.json"), Qt::CaseInsensitive) ? DocumentFormat::Json
                                                                                : DocumentFormat::Binary;
}

SaveResult saveDocument(Document &document, const QString &file, const std::optional<FileStamp> &expected)
{
    SaveResult result;
    const QByteArray bytes = encodeDocument(document, documentFormatOf(file), &result.problem);
    if (bytes.isEmpty())
        return result;
    return saveResult(writeDurably(file, bytes, expected), file);
}

SaveResult copyFile(const QString &file, const QString &copy)
{
    QFile in(file);
    const QByteArray bytes = in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    if (in.error() != QFileDevice::NoError) {
        SaveResult result;
        result.problem = error(QStringLiteral("IDS_FILE_CANNOT_READ"), {file, in.errorString()});
        return result;
    }
    return saveResult(writeDurably(copy, bytes, FileStamp()), copy);
}

OpenResult openDocument(const QString &file, const ObjectRegistry &registry)
{
    QFile in(file);
    OpenResult result;
    const bool isOpen = in.open(QIODevice::ReadOnly);
    // A device may never end.
    if (isOpen && !QFileInfo(file).isFile()) {
        result.messages = {error(QStringLiteral("IDS_FILE_NO_DOCUMENT"))};
        return result;
    }
    if (isOpen && in.size() > chunks::mostBytes) {
        result.messages = {error(QStringLiteral("IDS_FILE_BEYOND_LIMIT"),
                                 {QString::number(in.size()), QString::number(chunks::mostBytes)})};
        return result;
    }
    const QByteArray bytes = isOpen ? in.readAll() : QByteArray();
    if (in.error() != QFileDevice::NoError) {
        result.messages = {error(QStringLiteral("IDS_FILE_CANNOT_READ"), {file, in.errorString()})};
        return result;
    }
    result = decodeDocument(bytes, registry);
    result.stamp = FileStamp::of(in.handle(), bytes);
    return result;
}

QByteArray encodeDocument(Document &document, DocumentFormat format, FileMessage *problem)
{
    FileMessage ignored;
    FileMessage &told = problem ? *problem : ignored;
    return format == DocumentFormat::Json ? jsonformat::write(document, told) : binaryformat::write(document, told);
}

OpenResult decodeDocument(const QByteArray &bytes, const ObjectRegistry &registry)
{
    OpenResult result;
    const ObjectFactory factory(registry);
    result.document = formatOf(bytes) == DocumentFormat::Json ? jsonformat::read(bytes, factory, result.messages)
                                                              : binaryformat::read(bytes, factory, result.messages);
    if (!result.document)
        return result;
    if (result.document->pageCount() == 0)
        result.document->appendPage();
    result.document->setCurrentIndex(0);
    result.document->clearModified();
    return result;
}

QString objectsMimeType()
{
    return QStringLiteral("application/x-gliololok-objects");
}

QByteArray encodeObjects(const QVector<CBaseObject *> &objects)
{
    chunks::Writer writer;
    if (!writeAssets(writer, namedAssets(objects)))
        return {};
    const ObjectGroups groups = groupsAmong(objects);
    for (const ObjectGroup &group : groups)
        if (!writer.write(chunks::groupTag, streamed(group)))
            return {};
    for (CBaseObject *object : objects)
        if (!writeObject(writer.begin(chunks::objectTag), object) || !writer.end())
            return {};
    return writer.write(chunks::endTag, QByteArray()) ? writer.bytes() : QByteArray();
}

QVector<CBaseObject *> decodeObjects(const QByteArray &bytes, const ObjectRegistry &registry,
                                     QVector<FileMessage> *messages, IPsPage *page, ObjectGroups *groups)
{
    QVector<CBaseObject *> objects;
    if (!chunks::Reader::hasSignature(bytes))
        return objects;
    ObjectFactory factory(registry);
    const AssetStore assets = assetsOf(bytes);
    factory.setAssets(assets);
    // Placeholders leave what they name to their document.
    auto *document = page ? dynamic_cast<Document *>(page->document()) : nullptr;
    if (document)
        document->assets().unite(assets);
    chunks::Reader reader(bytes);
    chunks::Chunk chunk;
    QVector<quint32> originals;
    while (reader.next(chunk)) {
        if (chunk.tag != chunks::objectTag)
            continue;
        ObjectRecord record = recordOf(chunk.payload);
        originals.append(std::exchange(record.id, 0)); // the original may be on the page
        FileMessage message = warning(QString());
        objects.append(factory.make(record, page, message));
        if (messages && !message.textKey.isEmpty()) {
            message.object = objects.size();
            message.offset = chunk.offset;
            addMessage(*messages, message);
        }
    }
    followCopies(objects, originals, document);
    if (groups && document)
        *groups = groupsOfCopies(bytes, objects, originals, *document);
    return objects;
}

bool isPlaceholder(const CBaseObject *object)
{
    return dynamic_cast<const PlaceholderObject *>(object) != nullptr;
}

} // namespace pagehost
