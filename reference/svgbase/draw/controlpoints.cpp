#include "draw/controlpoints.h"

namespace Svg {

namespace {

const QLatin1String idStart("control_");
constexpr int maximumControlPoints = 32;

} // namespace

bool isControlPointId(const QString &id)
{
    if (!id.startsWith(idStart))
        return false;
    const QStringRef digits = id.midRef(idStart.size());
    if (digits.isEmpty() || digits.size() > 2 || digits.front() == QLatin1Char('0'))
        return false;
    bool isNumber = false;
    const int number = digits.toInt(&isNumber);
    return isNumber && number >= 1 && number <= maximumControlPoints;
}

} // namespace Svg
