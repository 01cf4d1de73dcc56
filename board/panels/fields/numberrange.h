#pragma once

#include <limits>

namespace board {

/// Range of numbers that a field offers.
struct NumberRange
{
    double minimum = -std::numeric_limits<int>::max();
    double maximum = std::numeric_limits<int>::max();
    double step = 1;
    int decimals = 0; ///< places after the point that are shown

    static constexpr int mostDecimals = 6;
    static constexpr int usualDecimals = 2;
    /// The range that both have. Its minimum is above its maximum when there is none.
    NumberRange common(const NumberRange &other) const;
    /// The places after the point that values of this step need.
    static int decimalsOf(double step);
};

bool operator==(const NumberRange &one, const NumberRange &other);

} // namespace board
