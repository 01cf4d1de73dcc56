#include "ink/core/strokedata.h"

#include <algorithm>
#include <cmath>

namespace ink {

namespace {

constexpr char version = 1;
constexpr char withPressures = 1;
constexpr double stepsPerUnit = 64;
constexpr double pressureSteps = 255;
/// No stroke reaches farther, document units.
constexpr double farthest = 1e6;
constexpr int bitsPerByte = 7;
constexpr quint64 payloadMask = 0x7f;
constexpr quint64 moreFollow = 0x80;
constexpr int mostBits = 63;

qint64 stepsOf(double length)
{
    return std::isfinite(length) ? qint64(std::llround(qBound(-farthest, length, farthest) * stepsPerUnit)) : 0;
}

void append(QByteArray &bytes, qint64 steps)
{
    quint64 rest = steps < 0 ? (quint64(-(steps + 1)) << 1) | 1 : quint64(steps) << 1;
    while (rest > payloadMask) {
        bytes.append(char((rest & payloadMask) | moreFollow));
        rest >>= bitsPerByte;
    }
    bytes.append(char(rest));
}

/// Reads the parts of a stroke one after the other.
class Reader
{
public:
    explicit Reader(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    bool atEnd() const { return m_at >= m_bytes.size(); }
    bool hasFailed() const { return m_hasFailed; }
    quint8 byte()
    {
        m_hasFailed |= atEnd();
        return m_hasFailed ? 0 : quint8(m_bytes.at(m_at++));
    }
    qint64 steps()
    {
        quint64 value = 0;
        for (int shift = 0; shift < mostBits; shift += bitsPerByte) {
            const quint64 part = byte();
            value |= (part & payloadMask) << shift;
            if (!(part & moreFollow))
                return value & 1 ? -qint64(value >> 1) - 1 : qint64(value >> 1);
        }
        m_hasFailed = true;
        return 0;
    }

private:
    const QByteArray &m_bytes;
    int m_at = 0;
    bool m_hasFailed = false;
};

bool isOnPaper(qint64 steps)
{
    return std::abs(double(steps)) <= farthest * stepsPerUnit;
}

} // namespace

StrokePoint savedPoint(const StrokePoint &point)
{
    const double pressure =
        point.pressure < 0 ? -1 : std::round(std::min(point.pressure, 1.0) * pressureSteps) / pressureSteps;
    return {{savedLength(point.place.x()), savedLength(point.place.y())}, pressure};
}

double savedLength(double length)
{
    return double(stepsOf(length)) / stepsPerUnit;
}

QByteArray encoded(const StrokeData &data)
{
    const bool hasPressures = std::any_of(data.points.begin(), data.points.end(),
                                          [](const StrokePoint &point) { return point.pressure >= 0; });
    QByteArray bytes;
    bytes.append(version);
    bytes.append(hasPressures ? withPressures : char(0));
    append(bytes, stepsOf(data.margin));
    qint64 x = 0;
    qint64 y = 0;
    for (const StrokePoint &point : data.points) {
        append(bytes, stepsOf(point.place.x()) - x);
        append(bytes, stepsOf(point.place.y()) - y);
        x = stepsOf(point.place.x());
        y = stepsOf(point.place.y());
        if (hasPressures)
            bytes.append(char(quint8(std::lround(qBound(0.0, point.pressure, 1.0) * pressureSteps))));
    }
    return bytes;
}

StrokeData decoded(const QByteArray &bytes)
{
    Reader reader(bytes);
    StrokeData data;
    if (reader.byte() != version)
        return data;
    const bool hasPressures = reader.byte() & withPressures;
    data.margin = qBound(0.0, double(reader.steps()) / stepsPerUnit, farthest);
    qint64 x = 0;
    qint64 y = 0;
    while (!reader.atEnd()) {
        const qint64 wayX = reader.steps();
        const qint64 wayY = reader.steps();
        const double pressure = hasPressures ? reader.byte() / pressureSteps : -1;
        if (reader.hasFailed() || !isOnPaper(wayX) || !isOnPaper(wayY) || !isOnPaper(x + wayX) ||
            !isOnPaper(y + wayY))
            break;
        x += wayX;
        y += wayY;
        data.points.append({QPointF(double(x), double(y)) / stepsPerUnit, pressure});
    }
    return data;
}

} // namespace ink
