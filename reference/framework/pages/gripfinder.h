#pragma once

#include <pagehost/pagescene.h>

namespace pagehost {

/// What a press at `scenePos` would take hold of.
Grip findGrip(const Page &page, const QPointF &scenePos);
/// The cursor that shows it; `pressed` while it is held.
QCursor cursorFor(const Grip &grip, bool pressed);

} // namespace pagehost
