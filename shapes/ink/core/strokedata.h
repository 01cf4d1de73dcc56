#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QPointF>
#include <QtCore/QVector>

namespace ink {

/// A place that the pen touched, with its pressure from 0 to 1; below 0 where none was measured.
struct StrokePoint
{
    QPointF place;
    double pressure = -1;
};

inline bool operator==(const StrokePoint &one, const StrokePoint &other)
{
    return one.place.x() == other.place.x() && one.place.y() == other.place.y() && one.pressure == other.pressure;
}

/// The points of a stroke, and the room around them that its line needs; document units.
struct StrokeData
{
    QVector<StrokePoint> points;
    double margin = 0;
};

/// The point as saved data give it back: places are multiples of 1/64 unit, pressures of 1/255.
StrokePoint savedPoint(const StrokePoint &point);
double savedLength(double length);

/// A version byte, a byte of flags (1: with pressures), the margin; then for each point the way from the last one,
/// x and y, and a byte of pressure. Lengths are whole multiples of 1/64 unit, seven bits to a byte, low ones first,
/// with the sign in the lowest bit; the eighth bit says that more follow.
QByteArray encoded(const StrokeData &data);
/// Reads up to the first part that makes no sense.
StrokeData decoded(const QByteArray &bytes);

} // namespace ink
