#pragma once

#include <QtCore/QByteArray>

namespace pagehost {

/// A recorded payload as the object reads it. The two differ where an object records less than it reads: a fill is
/// recorded as its colour and read as a brush.
QByteArray replayedPayload(int actionId, const QByteArray &recorded);

} // namespace pagehost
