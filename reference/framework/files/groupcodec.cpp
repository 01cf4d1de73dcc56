#include <files/groupcodec.h>

#include <files/chunks.h>
#include <files/jsonnames.h>

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>
#include <QtCore/QJsonDocument>

#include <algorithm>
#include <cmath>
#include <limits>

namespace pagehost {

namespace {

using namespace jsonnames;

const QLatin1String groupKey(groupName);
const QLatin1String parentKey(parentName);
const QLatin1String nameKey(nameName);
const QLatin1String membersKey(membersName);

bool isNumber(const QJsonValue &value)
{
    const double number = value.toDouble(-1);
    return number >= 0 && number <= std::numeric_limits<quint32>::max() && std::floor(number) == number;
}

/// False for an object that is no group.
bool readGroup(const QJsonObject &json, ObjectGroup &group)
{
    const QJsonArray members = json.value(membersKey).toArray();
    const bool isGroup = isNumber(json.value(groupKey)) && json.value(membersKey).isArray() &&
                         std::all_of(members.begin(), members.end(), isNumber);
    if (!isGroup)
        return false;
    group.number = quint32(json.value(groupKey).toDouble());
    group.parent = isNumber(json.value(parentKey)) ? quint32(json.value(parentKey).toDouble()) : 0;
    group.name = json.value(nameKey).toString();
    for (const QJsonValue &member : members)
        group.members.append(quint32(member.toDouble()));
    return true;
}

/// Whether nothing but what groupsToJson() writes is there.
bool isWritten(const QJsonObject &json, const ObjectGroup &group)
{
    return groupsToJson({group}).first().toObject() == json;
}

/// Recognises groups by their contents: the name of the member may be damaged.
bool isArrayOfGroups(const QJsonValue &value)
{
    ObjectGroup group;
    return readGroup(value.toArray().first().toObject(), group);
}

void takeJson(const QJsonValue &value, TakenGroups &taken)
{
    QJsonArray unreadable;
    const QJsonArray entries = value.toArray();
    for (const QJsonValue &entry : entries) {
        ObjectGroup group;
        const bool isGroup = readGroup(entry.toObject(), group);
        if (isGroup)
            taken.groups.append(group);
        if (!isGroup || !isWritten(entry.toObject(), group))
            unreadable.append(entry);
    }
    if (!value.isArray())
        unreadable.append(value);
    if (!unreadable.isEmpty())
        taken.unreadable += QJsonDocument(QJsonObject{{groupsName, unreadable}}).toJson(QJsonDocument::Compact);
}

} // namespace

QByteArray streamed(const ObjectGroup &group)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(chunks::streamVersion);
    out << group.number << group.parent << (group.name.isNull() ? QString(QLatin1String("")) : group.name);
    out << quint32(group.members.size());
    for (const quint32 member : group.members)
        out << member;
    return bytes;
}

bool readGroup(const QByteArray &bytes, ObjectGroup &group)
{
    QDataStream in(bytes);
    in.setVersion(chunks::streamVersion);
    ObjectGroup read;
    quint32 count = 0;
    in >> read.number >> read.parent >> read.name >> count;
    if (in.status() != QDataStream::Ok || qint64(count) * qint64(sizeof(quint32)) != in.device()->bytesAvailable())
        return false;
    for (quint32 i = 0; i < count; ++i) {
        quint32 member = 0;
        in >> member;
        read.members.append(member);
    }
    group = read;
    return true;
}

QByteArray streamed(const ObjectGroups &groups)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(chunks::streamVersion);
    for (const ObjectGroup &group : groups)
        out << streamed(group);
    return bytes;
}

ObjectGroups readGroups(const QByteArray &bytes)
{
    QDataStream in(bytes);
    in.setVersion(chunks::streamVersion);
    ObjectGroups groups;
    while (!in.atEnd() && in.status() == QDataStream::Ok) {
        QByteArray payload;
        in >> payload;
        ObjectGroup group;
        if (readGroup(payload, group))
            groups.append(group);
    }
    return groups;
}

QJsonArray groupsToJson(const ObjectGroups &groups)
{
    QJsonArray array;
    for (const ObjectGroup &group : groups) {
        QJsonArray members;
        for (const quint32 member : group.members)
            members.append(double(member));
        QJsonObject json{{groupKey, double(group.number)}, {membersKey, members}};
        if (group.parent != 0)
            json.insert(parentKey, double(group.parent));
        if (!group.name.isEmpty())
            json.insert(nameKey, group.name);
        array.append(json);
    }
    return array;
}

TakenGroups takeGroups(ExtraData &extra)
{
    TakenGroups taken;
    const auto take = [&](const ExtraData::Chunk &chunk) {
        ObjectGroup group;
        if (chunk.tag != chunks::groupTag)
            return false;
        if (readGroup(chunk.data, group))
            taken.groups.append(group);
        else
            taken.unreadable += chunk.data;
        return true;
    };
    extra.chunks.erase(std::remove_if(extra.chunks.begin(), extra.chunks.end(), take), extra.chunks.end());
    const QStringList keys = extra.members.keys();
    for (const QString &key : keys) {
        const bool isNamed = key == QLatin1String(groupsName);
        if (!isNamed && !isArrayOfGroups(extra.members.value(key)))
            continue;
        taken.isDamaged = taken.isDamaged || !isNamed;
        takeJson(extra.members.take(key), taken);
    }
    taken.isDamaged = taken.isDamaged || !taken.unreadable.isEmpty();
    return taken;
}

} // namespace pagehost
