#include <files/documentcodec.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>

#include <files/chunks.h>
#include <files/documentassets.h>
#include <files/groupcodec.h>
#include <files/objectrecordstream.h>

#include <QtCore/QJsonDocument>

#include <algorithm>

namespace pagehost {

namespace {

bool writeExtraData(chunks::Writer &writer, const ExtraData &extra)
{
    bool done = extra.members.isEmpty() ||
                writer.write(chunks::membersTag, QJsonDocument(extra.members).toJson(QJsonDocument::Compact));
    for (const ExtraData::Chunk &chunk : extra.chunks)
        done = done && writer.write(chunk.tag, chunk.data);
    return done;
}

bool writeLesson(chunks::Writer &writer, const LessonData &lesson)
{
    QDataStream &out = writer.begin(chunks::lessonTag) << lesson.name << lesson.data;
    if (lesson.isDamaged)
        out << true;
    return writer.end();
}

bool writeGroups(chunks::Writer &writer, const ObjectGroups &groups)
{
    return std::all_of(groups.begin(), groups.end(),
                       [&](const ObjectGroup &group) { return writer.write(chunks::groupTag, streamed(group)); });
}

bool writePage(chunks::Writer &writer, const Page &page)
{
    QDataStream &out = writer.begin(chunks::pageTag);
    out << page.size().width() << page.size().height() << quint32(page.objectCount());
    const bool hasBackground = page.background().save(out);
    bool done = writer.end() && hasBackground && writeGroups(writer, page.grouping().groups()) &&
                writeExtraData(writer, page.extraData());
    const QVector<CBaseObject *> objects = page.objects();
    for (CBaseObject *object : objects) {
        done = done && writeObject(writer.begin(chunks::objectTag), object) && writer.end();
        if (!done)
            return false;
    }
    return done;
}

bool writeDocument(chunks::Writer &writer, Document &document)
{
    const QVector<LessonData> lessons = document.lessonsToSave();
    writer.begin(chunks::versionTag) << formatVersion << quint32(document.pageCount()) << quint32(lessons.size());
    bool done =
        writer.end() && writeExtraData(writer, document.extraData()) && writeAssets(writer, namedAssets(document));
    for (const LessonData &lesson : lessons)
        done = done && writeLesson(writer, lesson);
    const QVector<Page *> pages = document.pages();
    for (const Page *page : pages)
        done = done && writePage(writer, *page);
    return done && writer.write(chunks::endTag, QByteArray());
}

} // namespace

QByteArray binaryformat::write(Document &document, FileMessage &problem)
{
    chunks::Writer writer;
    if (!writeDocument(writer, document)) {
        problem = error(QStringLiteral("IDS_FILE_TOO_LARGE"));
        return {};
    }
    return writer.bytes();
}

} // namespace pagehost
