#include <pagehost/objectframe.h>

#include <framework/cbaseobject.h>

#include <host/geometry.h>

#include <cmath>

namespace pagehost {

namespace {

constexpr double smallestSide = 1;
constexpr double degreesPerRadian = 180 / 3.14159265358979323846;

QPointF centreOf(const GeometrySnapshot &snapshot)
{
    const QRectF rect({0, 0}, snapshot.size());
    return snapshot.pos() + rotated(rect.center(), snapshot.rotation());
}

void putCentre(CBaseObject &object, const QPointF &centre)
{
    object.CPSRootObject::setPos(centre - rotated(object.getClientRect().center(), object.rotation()), true);
}

void turnTo(CBaseObject &object, double degrees)
{
    object.setRotateByPoint(normalizedDegrees(degrees), object.getClientRect().center(), true);
}

/// Of an object whose page grows by these factors along its axes; an object that is turned can't become oblique.
QSizeF grownSize(const GeometrySnapshot &snapshot, double across, double down)
{
    const double angle = snapshot.rotation() / degreesPerRadian;
    const double ownAcross = std::hypot(across * std::cos(angle), down * std::sin(angle));
    const double ownDown = std::hypot(across * std::sin(angle), down * std::cos(angle));
    const QSizeF size(snapshot.size().width() * ownAcross, snapshot.size().height() * ownDown);
    return possibleSize(size).expandedTo({smallestSide, smallestSide});
}

} // namespace

void scaleTogether(const QVector<GeometrySnapshot> &before, const QPointF &fixed, double across, double down)
{
    for (const GeometrySnapshot &snapshot : before) {
        CBaseObject &object = *snapshot.object();
        if (object.canDo(OperationResize))
            object.setSize(grownSize(snapshot, across, down), true, false);
        const QPointF away = centreOf(snapshot) - fixed;
        putCentre(object, fixed + QPointF(away.x() * across, away.y() * down));
    }
}

void turnTogether(const QVector<GeometrySnapshot> &before, const QPointF &centre, double degrees)
{
    for (const GeometrySnapshot &snapshot : before) {
        CBaseObject &object = *snapshot.object();
        if (object.canDo(OperationRotate))
            turnTo(object, snapshot.rotation() + degrees);
        putCentre(object, centre + rotated(centreOf(snapshot) - centre, degrees));
    }
}

void mirrorTogether(const QVector<GeometrySnapshot> &before, const QPointF &centre, bool horizontally)
{
    for (const GeometrySnapshot &snapshot : before) {
        CBaseObject &object = *snapshot.object();
        object.setMirror(snapshot.isMirrored() != horizontally, snapshot.isFlipped() == horizontally, true);
        // A mirror shows a clockwise turn as one to the other side.
        if (snapshot.rotation() != 0)
            turnTo(object, -snapshot.rotation());
        const QPointF away = centreOf(snapshot) - centre;
        putCentre(object, centre + (horizontally ? QPointF(-away.x(), away.y()) : QPointF(away.x(), -away.y())));
    }
}

} // namespace pagehost
