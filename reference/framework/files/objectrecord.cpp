#include <files/objectrecord.h>

#include <framework/cbaseobject.h>

#include <pagehost/objectid.h>
#include <pagehost/objectregistry.h>

#include <files/chunks.h>
#include <files/placeholderobject.h>
#include <host/rootobjectprivate.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonDocument>

#include <memory>

namespace pagehost {

namespace {

/// False when the object took more or less than the bytes that are its own, or found them to be no state of it.
bool loadFromStream(CBaseObject *object, const QByteArray &data)
{
    QDataStream in(data);
    in.setVersion(chunks::streamVersion);
    const bool loaded = object->load(in);
    return loaded && in.status() == QDataStream::Ok && in.device()->atEnd();
}

bool loadFromJson(CBaseObject *object, const ObjectRecord &record)
{
    QJsonObject json = record.json.isEmpty() ? QJsonDocument::fromJson(record.data).object() : record.json;
    return !json.isEmpty() && object->loadJson(json);
}

} // namespace

bool saveToStream(CBaseObject *object, QDataStream &out)
{
    return object->save(out) && out.status() == QDataStream::Ok;
}

CBaseObject *ObjectFactory::load(const ObjectRecord &record) const
{
    std::unique_ptr<CBaseObject> object(m_registry.createObject(record.kindId));
    if (!object || record.encoding > ObjectRecord::Json) {
        return nullptr;
    }
    CPSRootObjectPrivate &host = CPSRootObjectPrivate::of(*object);
    host.refusedState = false;
    const bool loaded = record.encoding == ObjectRecord::Stream ? loadFromStream(object.get(), record.data)
                                                                : loadFromJson(object.get(), record);
    // Objects may forget to say that their base class refused its part.
    if (!loaded || host.refusedState) {
        return nullptr;
    }
    if (record.place) {
        object->CPSRootObject::setPos(record.place->pos, false);
        object->setLocked(record.place->locked);
    }
    return object.release();
}

CBaseObject *ObjectFactory::make(const ObjectRecord &record, FileMessage &message) const
{
    CBaseObject *object = load(record);
    if (!object) {
        const bool isKnown = m_registry.hasKind(record.kindId);
        message.textKey =
            isKnown ? QStringLiteral("IDS_FILE_OBJECT_BROKEN") : QStringLiteral("IDS_FILE_OBJECT_UNKNOWN");
        message.arguments = QStringList{record.kindId};
        object = new PlaceholderObject(record);
    }
    setObjectId(object, record.id);
    return object;
}

} // namespace pagehost
