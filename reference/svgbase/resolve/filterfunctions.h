#pragma once

#include "grammar/filterlists.h"
#include "properties/computedstyle.h"
#include "resolve/filterprimitive.h"

namespace Svg {

/// The primitive of a filter function (Filter Effects 1 §13); it works on colours as they are encoded.
FilterPrimitive functionPrimitive(const FilterFunction &function, const ComputedStyle &style);

/// The functions of the "filter" property; none for an invalid list.
QVector<FilterFunction> filterFunctions(const ComputedStyle &style);

/// Matrices of "feColorMatrix" (Filter Effects 1 §9.6).
std::array<double, 20> identityMatrix();
std::array<double, 20> saturateMatrix(double amount);
std::array<double, 20> hueRotateMatrix(double degrees);
std::array<double, 20> luminanceToAlphaMatrix();
/// A table of 256 values from a function of shares.
template<typename Function> QByteArray transferTable(Function function)
{
    constexpr int count = 256;
    constexpr double greatest = 255;
    QByteArray table(count, '\0');
    for (int i = 0; i < count; ++i)
        table[i] = char(qBound(0, qRound(function(i / greatest) * greatest), count - 1));
    return table;
}

} // namespace Svg
