#pragma once

#include <pagehost/pagetool.h>

#include <QtCore/QVector>

class CBaseObject;

namespace pagehost {

/// Where a line that is released there ends: at the nearest place within reach, or at the outline, of the topmost
/// object at the pointer. `objects` are in stacking order. Objects that follow others themselves are passed by.
ToolPage::Connection connectionAt(const QVector<CBaseObject *> &objects, const ToolPointer &pointer);
/// The area that objects at the pointer meet, scene coordinates.
QRectF connectionReach(const ToolPointer &pointer);

} // namespace pagehost
