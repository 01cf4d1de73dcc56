#include <files/objectrecord.h>

#include <framework/cbaseobject.h>
#include <framework/iframework.h>
#include <framework/ipspage.h>

#include <pagehost/objectid.h>
#include <pagehost/objectregistry.h>

#include <files/chunks.h>
#include <files/documentcodec.h>
#include <files/objecttexts.h>
#include <files/placeholderobject.h>
#include <host/hoststate.h>
#include <host/objectreading.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonDocument>

#include <algorithm>
#include <cmath>
#include <memory>

namespace pagehost {

/// Changes the current document's zoom during its lifetime, without notifying views.
class ZoomScope
{
public:
    explicit ZoomScope(double zoom)
        : m_document(dynamic_cast<Document *>(GetFramework()->currentDocument()))
        , m_before(m_document ? m_document->m_zoom : 1)
    {
        set(isPlausible(zoom) ? zoom : 1);
    }
    ~ZoomScope() { set(m_before); }
    Q_DISABLE_COPY(ZoomScope)

private:
    static bool isPlausible(double zoom) { return zoom >= smallestZoom && zoom <= largestZoom; }
    void set(double zoom)
    {
        if (m_document)
            m_document->m_zoom = zoom;
    }

    static constexpr double smallestZoom = 1e-3;
    static constexpr double largestZoom = 1e3;

    Document *m_document;
    double m_before;
};

namespace {

/// False when the object read more or less than its own bytes, or rejected them.
bool loadFromStream(CBaseObject *object, const QByteArray &data)
{
    QDataStream in(data);
    in.setVersion(chunks::streamVersion);
    const bool loaded = object->load(in);
    return loaded && in.status() == QDataStream::Ok && in.device()->atEnd();
}

/// Damaged data may load and still be lost where the object does not store it.
bool holdsAll(CBaseObject *object, const ObjectRecord &record)
{
    return !record.isDamaged || record.encoding != ObjectRecord::Stream || streamed(object) == record.data;
}

bool loadFromJson(CBaseObject *object, const ObjectRecord &record)
{
    QJsonObject json = record.json.isEmpty() ? QJsonDocument::fromJson(record.data).object() : record.json;
    return !json.isEmpty() && object->loadJson(json);
}

/// Objects that paint their own fill have read only a colour; this gives them the gradient, pattern or picture that
/// the page object has read.
void showWholeFill(CBaseObject *object)
{
    CPageBgProp fill = *object->getFillProp();
    if (!fill.isFillEnable() || fill.fillType() <= CPageBgProp::SolidFill)
        return;
    // They ignore a fill of their present colour, so set another one first.
    CPageBgProp other = fill;
    other.setFillColor(QColor(fill.fillColor().rgb() ^ 0xffffff));
    object->setFillProp(&other, false);
    object->setFillProp(&fill, false);
}

} // namespace

ObjectRecord headOf(CBaseObject *object)
{
    ObjectRecord record;
    record.kindId = kindIdOf(object);
    record.id = objectId(object);
    record.zoom = followedZoom(*object);
    return record;
}

bool saveToStream(CBaseObject *object, QDataStream &out)
{
    return object->save(out) && out.status() == QDataStream::Ok;
}

QByteArray streamed(CBaseObject *object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(chunks::streamVersion);
    saveToStream(object, out);
    return bytes;
}

CBaseObject *ObjectFactory::load(const ObjectRecord &record, IPsPage *page) const
{
    // Objects look up their document when they are made and read, and remember it.
    IDocument *document = page ? page->document() : nullptr;
    const CurrentDocumentScope current(document ? document : GetFramework()->currentDocument());
    const ZoomScope zoom(record.zoom);
    std::unique_ptr<CBaseObject> object(m_registry.createObject(record.kindId));
    if (!object || record.encoding > ObjectRecord::Json)
        return nullptr;
    const ObjectReading reading(*object, page);
    giveTexts(*object, record, page);
    bool loaded = false;
    m_registry.run(record.kindId, QStringLiteral("load()"), [&] {
        loaded = record.encoding == ObjectRecord::Stream ? loadFromStream(object.get(), record.data)
                                                         : loadFromJson(object.get(), record);
    });
    if (!loaded || reading.wasRefused() || !holdsAll(object.get(), record))
        return nullptr;
    showWholeFill(object.get());
    if (record.place) {
        object->CPSRootObject::setPos(record.place->pos, false);
        object->setLocked(record.place->locked);
    }
    return object.release();
}

/// Each object gets copies: damaged data that name everything must not take for ever.
void ObjectFactory::giveTexts(CBaseObject &object, const ObjectRecord &record, IPsPage *page) const
{
    constexpr qint64 mostBytes = 1 << 30;
    const auto *document = page ? dynamic_cast<const Document *>(page->document()) : nullptr;
    const AssetStore &assets = document ? document->assets() : m_assets;
    if (assets.isEmpty())
        return;
    QMap<QByteArray, QByteArray> texts;
    const QSet<QByteArray> keys = AssetStore::keysIn(record.data);
    for (const QByteArray &key : keys) {
        if (!assets.contains(key) || m_given > mostBytes)
            continue;
        const QByteArray contents = assets.contents(key);
        m_given += contents.size();
        texts.insert(key, contents);
    }
    if (!texts.isEmpty())
        m_registry.run(record.kindId, QStringLiteral("SetSpecialProperty()"), [&] { tellTexts(object, texts); });
}

/// False for an object that is made of other texts than its data name.
bool ObjectFactory::isOfSavedTexts(CBaseObject &object, const ObjectRecord &record) const
{
    const QList<QByteArray> needed = textsOf(object).keys();
    return needed.isEmpty() ||
           AssetStore::keysIn(record.data).contains(QSet<QByteArray>(needed.begin(), needed.end()));
}

/// Objects keep pictures of themselves: a few damaged bytes must not request more memory than there is.
bool ObjectFactory::hasRoomFor(const ObjectRecord &record) const
{
    constexpr double largestArea = 1 << 26; // 256 MiB of picture
    constexpr double mostArea = 1u << 30;   // 4 GiB in all
    QSizeF size;
    if (record.encoding == ObjectRecord::Stream) {
        QDataStream in(record.data);
        in.setVersion(chunks::streamVersion);
        size = savedClientSize(in);
    } else {
        size = savedClientSize(record.json);
    }
    const double area = std::abs(size.width() * size.height());
    if (!(area <= largestArea) || m_area + area > mostArea)
        return false;
    m_area += area;
    return true;
}

/// Null, with the reason, when the object cannot be made.
CBaseObject *ObjectFactory::tryToMake(const ObjectRecord &record, IPsPage *page, FileMessage &reason) const
{
    const auto refuse = [&](const QString &textKey) {
        reason.textKey = textKey;
        reason.arguments = QStringList{record.kindId};
        return nullptr;
    };
    if (record.encoding == ObjectRecord::Payload) {
        // Its kind is unknown.
        reason.textKey = QStringLiteral("IDS_FILE_OBJECT_UNREADABLE");
        return nullptr;
    }
    if (!m_registry.canMake(record.kindId))
        return refuse(QStringLiteral("IDS_FILE_OBJECT_UNKNOWN"));
    if (!hasRoomFor(record))
        return refuse(QStringLiteral("IDS_FILE_OBJECT_TOO_LARGE"));
    CBaseObject *object = load(record, page);
    if (object)
        return object;
    return refuse(m_registry.hasKind(record.kindId) ? QStringLiteral("IDS_FILE_OBJECT_BROKEN")
                                                    : QStringLiteral("IDS_FILE_OBJECT_UNKNOWN"));
}

/// False when the file has more about the object than it saves itself: the names of members may be damaged.
bool ObjectFactory::knowsAllMembers(CBaseObject *object, const ObjectRecord &record) const
{
    const QStringList names = record.json.keys();
    QSet<QString> &known = m_members[record.kindId];
    const auto isKnown = [&](const QString &name) { return known.contains(name); };
    if (std::all_of(names.begin(), names.end(), isKnown))
        return true;
    // Compare only objects with a member that no earlier one had.
    QJsonObject saved;
    object->saveJson(saved);
    const QStringList savedNames = saved.keys();
    known.unite(QSet<QString>(savedNames.begin(), savedNames.end()));
    return std::all_of(names.begin(), names.end(), isKnown);
}

CBaseObject *ObjectFactory::make(const ObjectRecord &record, IPsPage *page, FileMessage &message) const
{
    CBaseObject *object = tryToMake(record, page, message);
    if (!object) {
        object = new PlaceholderObject(record);
    } else if (!knowsAllMembers(object, record)) {
        message.textKey = QStringLiteral("IDS_FILE_OBJECT_MEMBERS");
        message.arguments = QStringList{record.kindId};
    } else if (!isOfSavedTexts(*object, record)) {
        message.textKey = QStringLiteral("IDS_FILE_OBJECT_VERSION");
        message.arguments = QStringList{record.kindId};
    }
    setObjectId(object, record.id);
    return object;
}

} // namespace pagehost
