#pragma once

#include <pagehost/pagescene.h>

namespace pagehost {

/// The grip that a press at `scenePos` would start: of those that the pointer reaches, the nearest one.
Grip findGrip(const Page &page, const QPointF &scenePos, Pointer pointer);
/// An object that is selected at a point, and the objects that a click with Ctrl takes there instead: those of the
/// object or group below it, at the bottom those of the topmost one. Null where nothing is selected, and where
/// nothing else is. Locked objects are passed.
struct ObjectsBelow
{
    CBaseObject *selected = nullptr;
    QVector<CBaseObject *> next;
};
ObjectsBelow findBelow(const Page &page, const QPointF &scenePos);
/// The cursor for the grip; `pressed` while it is held.
QCursor cursorFor(const Grip &grip, bool pressed);

} // namespace pagehost
