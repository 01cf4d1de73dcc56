#pragma once

#include <QtCore/QDataStream>

/// Byte layout of a brush written by QDataStream.
namespace BrushLayout {

constexpr int styleBytes = 1;
/// Since Qt 4.0: its kind and five numbers of 16 bits.
constexpr int colorBytes = 1 + 5 * 2;
constexpr int intBytes = 4;

inline bool isGradient(int style)
{
    return style == Qt::LinearGradientPattern || style == Qt::RadialGradientPattern ||
           style == Qt::ConicalGradientPattern;
}

/// Streams of Qt 3 have colours without a kind, and no gradients.
inline bool isModern(const QDataStream &in)
{
    return in.version() >= QDataStream::Qt_4_0;
}

/// Offset of the stop count, which follows the gradient's settings: its type, since Qt 4.3 spread and coordinate
/// mode, since Qt 4.5 interpolation.
inline int stopCountOffset(const QDataStream &in)
{
    const int settings = in.version() >= QDataStream::Qt_4_5 ? 4 : in.version() >= QDataStream::Qt_4_3 ? 3 : 1;
    return styleBytes + colorBytes + settings * intBytes;
}

inline int stopsOffset(const QDataStream &in)
{
    return stopCountOffset(in) + intBytes;
}

/// Size of a stop's position; its colour follows.
inline int stopPlaceBytes(const QDataStream &in)
{
    const bool single =
        in.version() >= QDataStream::Qt_4_6 && in.floatingPointPrecision() == QDataStream::SinglePrecision;
    return int(single ? sizeof(float) : sizeof(double));
}

inline int stopBytes(const QDataStream &in)
{
    return stopPlaceBytes(in) + colorBytes;
}

/// Upper limit of the bytes after the stops: two points, a radius and a matrix.
constexpr int mostBytesBehindStops = (2 + 2 + 1 + 9) * int(sizeof(double));

} // namespace BrushLayout
