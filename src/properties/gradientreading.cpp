#include "properties/gradientreading.h"

#include "properties/brushlayout.h"

#include <QtCore/QIODevice>
#include <QtCore/QVector>
#include <QtGui/QBrush>

#include <algorithm>

namespace {

/// Reads bytes copied from another stream, with its version, byte order and precision.
class TakenStream : public QDataStream
{
public:
    TakenStream(const QByteArray &bytes, const QDataStream &model)
        : QDataStream(bytes)
    {
        setVersion(model.version());
        setByteOrder(model.byteOrder());
        setFloatingPointPrecision(model.floatingPointPrecision());
    }
};

QByteArray take(QDataStream &in, int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    const int taken = in.readRawData(bytes.data(), size);
    bytes.truncate(qMax(0, taken));
    return bytes;
}

struct Stop
{
    double place;
    int index;
};

/// Sorted by position.
QVector<Stop> sortedStops(const QByteArray &stops, const QDataStream &model)
{
    const int count = stops.size() / BrushLayout::stopBytes(model);
    QVector<Stop> sorted;
    sorted.reserve(count);
    TakenStream in(stops, model);
    for (int i = 0; i < count; ++i) {
        double place = 0;
        in >> place;
        in.skipRawData(BrushLayout::colorBytes);
        if (place >= 0 && place <= 1)
            sorted.append({place, i});
    }
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Stop &one, const Stop &other) { return one.place < other.place; });
    return sorted;
}

} // namespace

QByteArray settledStops(const QByteArray &stops, const QDataStream &model)
{
    const int size = BrushLayout::stopBytes(model);
    const int placeSize = BrushLayout::stopPlaceBytes(model);
    const QVector<Stop> sorted = sortedStops(stops, model);
    QByteArray settled(BrushLayout::intBytes, '\0');
    settled.reserve(settled.size() + sorted.size() * size);
    quint32 count = 0;
    for (int i = 0; i < sorted.size(); ++count) {
        const Stop first = sorted[i];
        while (i + 1 < sorted.size() && sorted[i + 1].place == first.place)
            ++i;
        const int last = sorted[i++].index;
        settled.append(stops.constData() + first.index * size, placeSize);
        settled.append(stops.constData() + last * size + placeSize, BrushLayout::colorBytes);
    }
    QDataStream out(&settled, QIODevice::ReadWrite);
    out.setByteOrder(model.byteOrder());
    out << count;
    return settled;
}

QBrush readGradient(QDataStream &in)
{
    const QByteArray head = take(in, BrushLayout::stopsOffset(in));
    QByteArray bytes = head.left(BrushLayout::stopCountOffset(in));
    quint32 count = 0;
    TakenStream(head.mid(BrushLayout::stopCountOffset(in)), in) >> count;
    if (head.size() == BrushLayout::stopsOffset(in))
        bytes += settledStops(take(in, int(count) * BrushLayout::stopBytes(in)), in);
    const int taken = bytes.size();
    bytes += in.device()->peek(BrushLayout::mostBytesBehindStops);
    TakenStream whole(bytes, in);
    QBrush brush;
    whole >> brush;
    in.skipRawData(qMax(0, int(whole.device()->pos()) - taken));
    in.setStatus(whole.status());
    return brush;
}
