#include "shape/controlpoints.h"

#include <array>

namespace {

QString makeId(quint32 number)
{
    return QStringLiteral("control_") + QString::number(number);
}

std::array<QString, maxControlPoints> makeIds()
{
    std::array<QString, maxControlPoints> ids;
    for (quint32 i = 0; i < maxControlPoints; ++i)
        ids[i] = makeId(i + 1);
    return ids;
}

} // namespace

// Cached: called whenever a shape is created, saved or opened.
QString controlPointId(quint32 number)
{
    static const std::array<QString, maxControlPoints> ids = makeIds();
    return number >= 1 && number <= maxControlPoints ? ids[number - 1] : makeId(number);
}
