#include "resolve/facts.h"

namespace Svg {

bool Facts::inheritsAlike(const FactsPointer &above) const
{
    if (!parent || !above)
        return parent == above;
    return parent->style == above->style && parent->viewport == above->viewport;
}

const Fitting &Facts::fitted() const
{
    static const Fitting none;
    return fitting ? *fitting : none;
}

Fitting &Facts::ownFitting()
{
    if (!fitting)
        fitting = new Fitting;
    return *fitting;
}

} // namespace Svg
