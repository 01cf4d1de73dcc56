#include <files/documentassets.h>

#include <framework/cbaseobject.h>
#include <framework/ipspage.h>

#include <pagehost/lesson.h>
#include <pagehost/page.h>

#include <files/chunks.h>
#include <files/jsonnames.h>
#include <files/objecttexts.h>
#include <files/placeholderobject.h>

#include <algorithm>

namespace pagehost {

namespace {

const QLatin1String assetsMember(jsonnames::assetsName);

QSet<QByteArray> keysOf(const LessonStep &step)
{
    if (const auto *appeared = std::get_if<ObjectAppeared>(&step))
        return AssetStore::keysIn(appeared->data);
    if (const auto *settled = std::get_if<ObjectSettled>(&step))
        return AssetStore::keysIn(settled->data);
    if (const auto *acted = std::get_if<ObjectActed>(&step))
        return AssetStore::keysIn(acted->payload);
    return {};
}

/// Text holds the bytes of its objects encoded, so that a lesson has to be read.
QSet<QByteArray> keysOf(const LessonData &data)
{
    QSet<QByteArray> keys = AssetStore::keysIn(data.data);
    Lesson lesson;
    lesson.fromDamagedData(data.data);
    for (const LessonStep &step : qAsConst(lesson.start))
        keys.unite(keysOf(step));
    for (const LessonEvent &event : qAsConst(lesson.events))
        keys.unite(keysOf(event.step));
    return keys;
}

QSet<QByteArray> keysOf(CBaseObject &object, AssetStore &store)
{
    if (const auto *placeholder = dynamic_cast<PlaceholderObject *>(&object))
        return AssetStore::keysIn(placeholder->record().data);
    return keepTextsOf(object, store);
}

Document *documentOf(const CBaseObject &object)
{
    const IPsPage *page = object.GetPage();
    return page ? dynamic_cast<Document *>(page->document()) : nullptr;
}

} // namespace

AssetStore namedAssets(Document &document)
{
    AssetStore &store = document.assets();
    QSet<QByteArray> keys;
    const QVector<Page *> pages = document.pages();
    for (const Page *page : pages) {
        const QVector<CBaseObject *> objects = page->objects();
        for (CBaseObject *object : objects)
            keys.unite(keysOf(*object, store));
    }
    // Reading a lesson takes time; without assets there is nothing to name.
    const QVector<LessonData> lessons = store.isEmpty() ? QVector<LessonData>() : document.lessonsToSave();
    for (const LessonData &lesson : lessons)
        keys.unite(keysOf(lesson));
    return store.part(keys);
}

AssetStore namedAssets(const QVector<CBaseObject *> &objects)
{
    AssetStore assets;
    for (CBaseObject *object : objects) {
        const QSet<QByteArray> keys = keysOf(*object, assets);
        if (const Document *document = documentOf(*object))
            assets.unite(document->assets().part(keys));
    }
    return assets;
}

bool writeAssets(chunks::Writer &writer, const AssetStore &assets)
{
    bool done = true;
    const QList<QByteArray> keys = assets.keys();
    for (const QByteArray &key : keys)
        done = done && writer.write(chunks::assetTag, key + assets.compressed(key));
    return done;
}

void takeAssetMembers(ExtraData &extra, AssetStore &store)
{
    QJsonObject left;
    const QJsonObject members = extra.members.take(assetsMember).toObject();
    for (auto member = members.begin(); member != members.end(); ++member)
        if (!store.addCompressed(member.key().toLatin1(), QByteArray::fromBase64(member->toString().toLatin1())))
            left.insert(member.key(), *member);
    if (!left.isEmpty())
        extra.members.insert(assetsMember, left);
}

void takeAssetChunks(ExtraData &extra, AssetStore &store)
{
    const auto isTaken = [&](const ExtraData::Chunk &chunk) {
        return chunk.tag == chunks::assetTag &&
               store.addCompressed(chunk.data.left(AssetStore::keySize), chunk.data.mid(AssetStore::keySize));
    };
    extra.chunks.erase(std::remove_if(extra.chunks.begin(), extra.chunks.end(), isTaken), extra.chunks.end());
}

} // namespace pagehost
