#include <lessons/replaying.h>

#include <QtCore/QDataStream>
#include <QtGui/QBrush>
#include <QtGui/QColor>

namespace pagehost {

namespace {

constexpr int fillAction = 1005;
/// A QColor on a stream: its model, and five numbers of 16 bits. A brush is longer.
constexpr int colorBytes = 1 + 5 * 2;

/// Qt takes over any number as a colour's model, and trips over it later.
bool isColorModel(char number)
{
    return uchar(number) <= QColor::ExtendedRgb;
}

} // namespace

QByteArray replayedPayload(int actionId, const QByteArray &recorded)
{
    if (actionId != fillAction || recorded.size() != colorBytes || !isColorModel(recorded.at(0))) {
        return recorded;
    }
    QColor color;
    QDataStream in(recorded);
    in >> color;
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << QBrush(color);
    return bytes;
}

} // namespace pagehost
