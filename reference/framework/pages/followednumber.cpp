#include <pages/followednumber.h>

#include <framework/cbaseobject.h>

#include <pagehost/objectid.h>
#include <pagehost/recorder.h>

#include <host/payload.h>

namespace pagehost {

quint32 followedNumber(CBaseObject *object, const Document *document, QVector<QPointer<CBaseObject>> *numbered)
{
    if (!document)
        return 0;
    const bool isNew = objectId(object) == 0;
    const quint32 number = ensureObjectId(object, *document);
    if (isNew) {
        numbered->append(object);
        QByteArray payload = payloadOf(number);
        object->RecordAction(ActionNumbered, &payload);
    }
    return number;
}

} // namespace pagehost
