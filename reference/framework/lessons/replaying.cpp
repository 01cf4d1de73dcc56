#include <lessons/replaying.h>

#include <pagehost/style.h>

#include <host/payload.h>
#include <host/streamedcolors.h>

namespace pagehost {

std::optional<QByteArray> replayedPayload(int actionId, const QByteArray &recorded)
{
    if (actionId != FillAction)
        return recorded;
    if (const std::optional<QColor> color = colorFrom(recorded))
        return payloadOf(QBrush(*color));
    return isWholeBrush(recorded) ? std::optional(recorded) : std::nullopt;
}

} // namespace pagehost
