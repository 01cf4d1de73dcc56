#include <files/documentcodec.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>

#include <files/chunks.h>
#include <files/documentassets.h>
#include <files/groupcodec.h>
#include <files/jsoncursor.h>
#include <files/jsonnames.h>
#include <files/jsonwriter.h>
#include <files/objectrecord.h>
#include <files/placeholderobject.h>

#include <QtCore/QJsonDocument>

namespace pagehost {

namespace {

using namespace jsonnames;

bool isJson(const QByteArray &text)
{
    JsonProblem problem;
    parseJson(text, problem);
    return !problem.isThere;
}

void writeHead(JsonWriter &writer, const ObjectRecord &record)
{
    writer.member(kindName, record.kindId);
    if (record.id)
        writer.member(idName, double(record.id));
    if (record.zoom != 1)
        writer.member(zoomName, record.zoom);
    if (record.isDamaged)
        writer.member(damagedName, true);
    if (record.place) {
        const QPointF pos = record.place->pos;
        writer.member(placeName,
                      QJsonObject{{xName, pos.x()}, {yName, pos.y()}, {lockedName, record.place->locked}});
    }
}

void writePlaceholder(JsonWriter &writer, const ObjectRecord &record)
{
    writeHead(writer, record);
    if (record.encoding == ObjectRecord::Stream)
        writer.member(streamName, record.data.toBase64());
    else if (record.encoding == ObjectRecord::Payload)
        writer.member(payloadName, record.data.toBase64());
    else if (record.encoding == ObjectRecord::Json && isJson(record.data))
        writer.rawMember(dataName, record.data);
    else
        writer.member(textName, record.data.toBase64());
}

bool writeObject(JsonWriter &writer, CBaseObject *object)
{
    writer.beginObject();
    if (const auto *placeholder = dynamic_cast<PlaceholderObject *>(object)) {
        writePlaceholder(writer, placeholder->record());
        writer.endObject();
        return true;
    }
    writeHead(writer, headOf(object));
    const int start = writer.size();
    QJsonObject data;
    const bool isSaved = object->saveJson(data);
    writer.member(dataName, data);
    // Objects with numbers that JSON can't represent are saved as a stream.
    if (!writer.isExact()) {
        writer.cutBack(start);
        writer.member(streamName, streamed(object).toBase64());
    }
    writer.endObject();
    return isSaved;
}

void writeExtraData(JsonWriter &writer, const ExtraData &extra)
{
    for (auto member = extra.members.begin(); member != extra.members.end(); ++member)
        writer.member(member.key(), member.value());
    if (extra.chunks.isEmpty())
        return;
    writer.beginArray(chunksName);
    for (const ExtraData::Chunk &chunk : extra.chunks) {
        writer.beginObject();
        writer.member(tagName, chunk.tag);
        writer.member(bytesName, chunk.data.toBase64());
        writer.endObject();
    }
    writer.endArray();
}

void writeAssets(JsonWriter &writer, const AssetStore &assets)
{
    if (assets.isEmpty())
        return;
    writer.beginObject(assetsName);
    const QList<QByteArray> keys = assets.keys();
    for (const QByteArray &key : keys)
        writer.member(key.constData(), assets.compressed(key).toBase64());
    writer.endObject();
}

bool writePage(JsonWriter &writer, const Page &page, int number)
{
    QJsonObject background;
    page.background().saveJson(background);
    writer.beginObject();
    writer.member(pageName, number);
    writer.member(widthName, page.size().width());
    writer.member(heightName, page.size().height());
    writer.member(objectCountName, page.objectCount());
    writer.member(backgroundName, background);
    const ObjectGroups groups = page.grouping().groups();
    if (!groups.isEmpty())
        writer.member(groupsName, groupsToJson(groups));
    writeExtraData(writer, page.extraData());
    writer.beginArray(objectsName);
    bool done = true;
    const QVector<CBaseObject *> objects = page.objects();
    for (CBaseObject *object : objects) {
        done = done && writeObject(writer, object) && writer.size() <= chunks::mostBytes;
        if (!done)
            return false;
    }
    writer.endArray();
    writer.endObject();
    return done;
}

/// As an object where the bytes are the text of one and are reproduced by it.
void writeLesson(JsonWriter &writer, const LessonData &lesson)
{
    writer.beginObject();
    writer.member(nameName, lesson.name);
    JsonProblem problem;
    const QJsonObject data =
        lesson.data.startsWith('{') ? parseJson(lesson.data, problem).toObject() : QJsonObject();
    const bool isText = !data.isEmpty() && QJsonDocument(data).toJson(QJsonDocument::Compact) == lesson.data;
    if (isText)
        writer.member(dataName, data);
    else
        writer.member(bytesName, lesson.data.toBase64());
    if (lesson.isDamaged)
        writer.member(damagedName, true);
    writer.endObject();
}

} // namespace

QByteArray jsonformat::write(Document &document, FileMessage &problem)
{
    JsonWriter writer;
    writer.beginObject();
    writer.member(formatName, QByteArray(formatText));
    writer.member(versionName, int(formatVersion));
    const QVector<LessonData> lessons = document.lessonsToSave();
    writer.member(pageCountName, document.pageCount());
    writer.member(lessonCountName, lessons.size());
    writeExtraData(writer, document.extraData());
    writeAssets(writer, namedAssets(document));
    if (!lessons.isEmpty()) {
        writer.beginArray(lessonsName);
        for (const LessonData &lesson : lessons)
            writeLesson(writer, lesson);
        writer.endArray();
    }
    writer.beginArray(pagesName);
    for (int index = 0; index < document.pageCount(); ++index) {
        if (!writePage(writer, *document.page(index), index + 1)) {
            problem = error(QStringLiteral("IDS_FILE_TOO_LARGE"));
            return {};
        }
    }
    writer.endArray();
    writer.endObject();
    return writer.text();
}

} // namespace pagehost
