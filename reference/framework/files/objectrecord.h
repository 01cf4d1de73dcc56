#pragma once

#include <pagehost/assetstore.h>
#include <pagehost/documentfile.h>

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QJsonObject>
#include <QtCore/QPointF>
#include <QtCore/QSet>
#include <QtCore/QString>

#include <optional>

class CBaseObject;
class IPsPage;

namespace pagehost {

/// A file's data of one object, in either format.
struct ObjectRecord
{
    enum Encoding : quint8 {
        Stream = 0, ///< written by the object's save()
        Json = 1,   ///< the text of the object's saveJson()
        Text = 2,   ///< text of a JSON file that is not an object
        Payload = 3 ///< of a chunk that is not a record, whole
    };
    /// Where the user put a placeholder, if its data say otherwise.
    struct Place
    {
        QPointF pos; ///< of the item's origin, scene coordinates
        bool locked = false;
    };

    QString kindId;
    quint32 id = 0;  ///< objectId()
    double zoom = 1; ///< that the object followed: the saved corners of control points depend on it
    Encoding encoding = Stream;
    QByteArray data;
    bool isDamaged = false; ///< the data are known to differ from those that were saved
    QJsonObject json;       ///< parsed `data`, when available
    std::optional<Place> place;
};

/// The record of an object that isn't a placeholder, without its data.
ObjectRecord headOf(CBaseObject *object);

/// The streamed state of an object that isn't a placeholder; false when it could not be saved.
bool saveToStream(CBaseObject *object, QDataStream &out);
QByteArray streamed(CBaseObject *object);

/// Makes objects from records for a document that they will belong to.
class ObjectFactory
{
public:
    explicit ObjectFactory(const ObjectRegistry &registry)
        : m_registry(registry)
    {
    }
    /// Of objects without a page, whose document has others.
    void setAssets(const AssetStore &assets) { m_assets = assets; }

    /// Never null: an object that cannot be made is a placeholder, and `message` gets its text. The caller owns the
    /// object. It knows `page`, unless that is null, while it is read, and is on none afterwards.
    CBaseObject *make(const ObjectRecord &record, IPsPage *page, FileMessage &message) const;

private:
    CBaseObject *tryToMake(const ObjectRecord &record, IPsPage *page, FileMessage &reason) const;
    CBaseObject *load(const ObjectRecord &record, IPsPage *page) const;
    void giveTexts(CBaseObject &object, const ObjectRecord &record, IPsPage *page) const;
    bool isOfSavedTexts(CBaseObject &object, const ObjectRecord &record) const;
    bool hasRoomFor(const ObjectRecord &record) const;
    bool knowsAllMembers(CBaseObject *object, const ObjectRecord &record) const;

    const ObjectRegistry &m_registry;
    AssetStore m_assets;
    mutable qint64 m_given = 0;                      ///< bytes of the texts that objects were given so far
    mutable double m_area = 0;                       ///< of the objects made so far, item units squared
    mutable QHash<QString, QSet<QString>> m_members; ///< that objects of each kind have saved as JSON so far
};

} // namespace pagehost
