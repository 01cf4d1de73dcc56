#include <host/followedobjects.h>

#include <framework/cbaseobject.h>

#include <pagehost/objectplugin.h>

#include <QtCore/QDataStream>

namespace {

/// A larger count is damage.
constexpr qint32 mostFollowed = 64;

/// The answer to a special property; empty for none.
QByteArray answerOf(CBaseObject &object, int property)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    return object.GetSpecialProperty(property, out) ? bytes : QByteArray();
}

void give(CBaseObject &object, int property, const QByteArray &bytes)
{
    QDataStream in(bytes);
    object.SetSpecialProperty(property, in, false);
}

qint32 countFrom(QDataStream &in)
{
    qint32 count = 0;
    in >> count;
    return qBound(0, count, mostFollowed);
}

} // namespace

QVector<ConnectionPlace> connectionPlaces(CBaseObject &object)
{
    const QByteArray answer = answerOf(object, pagehost::ConnectionPlaces);
    if (answer.isEmpty())
        return {};
    QDataStream in(answer);
    QVector<ConnectionPlace> places(countFrom(in));
    for (ConnectionPlace &place : places) {
        in >> place.name >> place.point >> place.direction;
        place.point = object.mapToScene(place.point);
        place.direction += object.rotation();
    }
    return places;
}

QPainterPath connectionOutline(CBaseObject &object)
{
    QPainterPath outline;
    const QByteArray answer = answerOf(object, pagehost::ConnectionOutline);
    QDataStream in(answer);
    if (!answer.isEmpty())
        in >> outline;
    if (outline.isEmpty())
        outline.addRect(object.getClientRect());
    return object.mapToScene(outline);
}

std::optional<QVector<quint32>> followedObjects(CBaseObject &object)
{
    const QByteArray answer = answerOf(object, pagehost::FollowedObjects);
    if (answer.isEmpty())
        return std::nullopt;
    QDataStream in(answer);
    QVector<quint32> numbers(countFrom(in));
    for (quint32 &number : numbers)
        in >> number;
    return numbers;
}

void setFollowedObjects(CBaseObject &object, const QVector<quint32> &numbers)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << qint32(numbers.size());
    for (const quint32 number : numbers)
        out << number;
    give(object, pagehost::FollowedObjects, bytes);
}

void tellFollower(CBaseObject &follower, const QVector<CBaseObject *> &followed)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << qint32(followed.size());
    for (CBaseObject *object : followed) {
        out << (object != nullptr);
        if (!object)
            continue;
        const QVector<ConnectionPlace> places = connectionPlaces(*object);
        out << connectionOutline(*object) << qint32(places.size());
        for (const ConnectionPlace &place : places)
            out << place.name << place.point << place.direction;
    }
    give(follower, pagehost::FollowedPlaces, bytes);
}
