#pragma once

#include "line/core/linecourse.h"

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>
#include <QtCore/QPointF>
#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtGui/QPainterPath>

#include <array>
#include <optional>

namespace line {

/// How an end of a line is joined to an object.
struct Joint
{
    quint32 object = 0; ///< the object's number; 0 for a free end
    QString place;      ///< the name of one of its places; empty for its outline
    /// The direction in which a right-angled line leaves the end, along an axis; (0, 0) for any. It stays when the
    /// object is gone, so that the line looks the same.
    QPointF out;

    /// A joint that was never made.
    bool isUnused() const { return object == 0 && place.isEmpty() && out.isNull(); }
};

using Joints = std::array<Joint, 2>;

QByteArray encoded(const Joints &joints);
/// Free ends for damaged data.
Joints decodedJoints(const QByteArray &bytes);

/// An object that lines are joined to, scene coordinates.
struct JoinedObject
{
    struct Place
    {
        QString name;
        QPointF point;
        double direction = 0; ///< degrees clockwise from the right; NaN for any
    };

    QPainterPath outline;
    QVector<Place> places;

    const Place *placeNamed(const QString &name) const;
    /// The point that a line to the place, or to the outline, aims at.
    QPointF aim(const QString &place) const;
};

/// For each end of a line the object that it is joined to, as pagehost::FollowedPlaces has them.
QVector<std::optional<JoinedObject>> readJoinedObjects(QDataStream &in);

/// An end of a line on an object, with the direction in which it leaves.
struct JoinedEnd
{
    QPointF point;
    QPointF out; ///< along an axis
};

/// The end of a line that comes from `from`: at the place, or where the line reaches the outline. A right-angled
/// line reaches it in the middle of a side.
JoinedEnd joinedEnd(const JoinedObject &object, const QString &place, QPointF from, bool isAngled);

/// Moves the ends of a line to the objects that they are joined to, as far as those are there.
void follow(LineCourse &course, Joints &joints, const QVector<std::optional<JoinedObject>> &objects);

} // namespace line
