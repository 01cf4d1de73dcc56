#include <files/objectrecordstream.h>

#include <files/chunks.h>
#include <files/placeholderobject.h>

#include <cmath>

namespace pagehost {

namespace {

// The first byte of a payload: the encoding in the lower bits, and flags for the fields between the kind and the
// data.
constexpr quint8 encodingBits = 0x0f;
constexpr quint8 hasId = 0x10;
constexpr quint8 hasPlace = 0x20;
constexpr quint8 hasZoom = 0x40;
constexpr quint8 damaged = 0x80;
constexpr quint8 knownBits = encodingBits | hasId | hasPlace | hasZoom | damaged;

/// Longer ones are damaged.
constexpr int longestKindId = 1000;

void writeHead(QDataStream &out, const ObjectRecord &record)
{
    const quint8 flags = quint8(record.encoding) | (record.id ? hasId : 0) | (record.place ? hasPlace : 0) |
                         (record.zoom != 1 ? hasZoom : 0) | (record.isDamaged ? damaged : 0);
    const QByteArray kindId = record.kindId.toUtf8();
    out << flags << quint16(kindId.size());
    out.writeRawData(kindId.constData(), kindId.size());
    if (record.id)
        out << record.id;
    if (record.place)
        out << record.place->pos << record.place->locked;
    if (record.zoom != 1)
        out << record.zoom;
}

} // namespace

bool writeObject(QDataStream &out, CBaseObject *object)
{
    if (const auto *placeholder = dynamic_cast<PlaceholderObject *>(object)) {
        const ObjectRecord record = placeholder->record();
        writeHead(out, record);
        out.writeRawData(record.data.constData(), record.data.size());
        return out.status() == QDataStream::Ok;
    }
    writeHead(out, headOf(object));
    return saveToStream(object, out);
}

bool readRecord(const QByteArray &payload, ObjectRecord &record)
{
    QDataStream in(payload);
    in.setVersion(chunks::streamVersion);
    quint8 flags = 0;
    quint16 kindSize = 0;
    in >> flags >> kindSize;
    const int kindStart = int(in.device()->pos());
    if (in.status() != QDataStream::Ok || (flags & ~knownBits) || kindSize > longestKindId ||
        kindSize > payload.size() - kindStart)
        return false;
    record.kindId = QString::fromUtf8(payload.constData() + kindStart, kindSize);
    if (record.kindId.toUtf8() != payload.mid(kindStart, kindSize))
        return false;
    record.encoding = ObjectRecord::Encoding(flags & encodingBits);
    record.isDamaged = flags & damaged;
    in.skipRawData(kindSize);
    if (flags & hasId)
        in >> record.id;
    if (flags & hasPlace) {
        ObjectRecord::Place place;
        in >> place.pos >> place.locked;
        if (std::isfinite(place.pos.x()) && std::isfinite(place.pos.y()))
            record.place = place;
    }
    if (flags & hasZoom)
        in >> record.zoom;
    const int start = int(in.device()->pos());
    record.data = QByteArray::fromRawData(payload.constData() + start, payload.size() - start);
    return in.status() == QDataStream::Ok && record.encoding <= ObjectRecord::Payload;
}

ObjectRecord recordOf(const QByteArray &payload)
{
    ObjectRecord record;
    if (readRecord(payload, record))
        return record;
    ObjectRecord whole;
    whole.encoding = ObjectRecord::Payload;
    whole.data = payload;
    return whole;
}

} // namespace pagehost
