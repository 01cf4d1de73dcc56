#include "panels/fields/numberrange.h"

#include <QtCore/QtGlobal>

#include <cmath>

namespace board {

NumberRange NumberRange::common(const NumberRange &other) const
{
    return {qMax(minimum, other.minimum), qMin(maximum, other.maximum), qMin(step, other.step),
            qMax(decimals, other.decimals)};
}

int NumberRange::decimalsOf(double step)
{
    double scaled = std::abs(step);
    for (int decimals = 0; decimals < mostDecimals; ++decimals) {
        if (std::abs(scaled - std::round(scaled)) < 1e-6 * qMax(1.0, scaled))
            return decimals;
        scaled *= 10;
    }
    return mostDecimals;
}

bool operator==(const NumberRange &one, const NumberRange &other)
{
    return one.minimum == other.minimum && one.maximum == other.maximum && one.step == other.step &&
           one.decimals == other.decimals;
}

} // namespace board
