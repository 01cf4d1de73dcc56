#pragma once

#include <QtCore/QByteArray>

#include <optional>

namespace pagehost {

/// A recorded payload as the object reads it. The two differ where an object records less than it reads: a fill is
/// recorded as its colour and read as a brush. Nothing for a fill that is neither, whole: objects take what they
/// cannot read for black.
std::optional<QByteArray> replayedPayload(int actionId, const QByteArray &recorded);

} // namespace pagehost
