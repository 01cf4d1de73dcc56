#include "shape/travel.h"

#include "shape/constants.h"

double AxisTravel::newStart() const
{
    if (newSide == oldSide)
        return pointStart;
    const double travel = boxSide - pointSide;
    if (sameLength(travel, 0) || travel <= 0)
        return -0.5 * pointSide;
    const double grown = (newSide + travel) - oldSide;
    const double firstCenter = 0.5 * pointSide + boxStart;
    const double center = pointStart + 0.5 * pointSide;
    return ((center - firstCenter) * grown) / travel + (grown * firstCenter) / travel - 0.5 * pointSide;
}
