#pragma once

#include <pagehost/pagescene.h>

namespace pagehost {

/// The grip that a press at `scenePos` would start.
Grip findGrip(const Page &page, const QPointF &scenePos);
/// The cursor for the grip; `pressed` while it is held.
QCursor cursorFor(const Grip &grip, bool pressed);

} // namespace pagehost
