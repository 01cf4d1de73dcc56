#pragma once

#include <QtCore/QByteArray>

#include <optional>

namespace pagehost {

/// A recorded payload in the form that the object reads. The two differ where an object records less than it reads:
/// a fill is recorded as its colour and read as a brush. Empty for a payload that is not exactly one of these:
/// objects take unreadable ones for black.
std::optional<QByteArray> replayedPayload(int actionId, const QByteArray &recorded);

} // namespace pagehost
