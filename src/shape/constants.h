#pragma once

#include <QtCore/qglobal.h>

/// Lengths that differ by less count as equal, in item as in document units.
constexpr double sizeEpsilon = 1e-7;
/// Entries of the control-point table; higher numbers in a template are ignored.
constexpr quint32 maxControlPoints = 32;
/// A control point's limit where its template gives none, document units.
constexpr double unlimitedTravel = 1000000.0;

/// True when two lengths differ by less than sizeEpsilon; false for NaN.
inline bool sameLength(double a, double b)
{
    return qAbs(a - b) < sizeEpsilon;
}
