#pragma once

#include <QtCore/QPointF>
#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtGui/QPainterPath>

#include <optional>

class CBaseObject;

// Objects that follow others, as a line does that connects two of them (pagehost::FollowedObjects).

/// A place of an object where lines may end, scene coordinates.
struct ConnectionPlace
{
    QString name;
    QPointF point;
    double direction = 0; ///< degrees clockwise from the right; NaN for any
};

QVector<ConnectionPlace> connectionPlaces(CBaseObject &object);
/// Where lines to the object end that have no place there, scene coordinates.
QPainterPath connectionOutline(CBaseObject &object);

/// The numbers (pagehost::objectId()) of the objects that an object follows, 0 for an end that follows none;
/// nothing for an object that can't follow.
std::optional<QVector<quint32>> followedObjects(CBaseObject &object);
/// As many as followedObjects() gives, in the same order.
void setFollowedObjects(CBaseObject &object, const QVector<quint32> &numbers);
/// Tells an object where those are that it follows, in the same order; null for one that is not on its page.
void tellFollower(CBaseObject &follower, const QVector<CBaseObject *> &followed);
