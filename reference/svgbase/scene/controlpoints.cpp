#include "scene/controlpoints.h"

#include <algorithm>

namespace Svg {

namespace {

const QLatin1String idStart("control_");
constexpr int maximumControlPoints = 32;

bool isAsciiDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

} // namespace

bool isControlPointId(const QString &id)
{
    if (!id.startsWith(idStart))
        return false;
    const QStringRef digits = id.midRef(idStart.size());
    const bool isShort = digits.size() == 1 || digits.size() == 2;
    if (!isShort || !std::all_of(digits.begin(), digits.end(), isAsciiDigit) || digits.front() == QLatin1Char('0'))
        return false;
    return digits.toInt() <= maximumControlPoints;
}

} // namespace Svg
