#include "grammar/angles.h"

#include "grammar/numbers.h"

#include <QtCore/QtMath>

namespace Svg {

namespace {

struct AngleUnit
{
    QLatin1String name;
    double degrees;
};

const AngleUnit angleUnits[] = {
    {QLatin1String("deg"), 1},
    {QLatin1String("grad"), 0.9},
    {QLatin1String("rad"), 180 / M_PI},
    {QLatin1String("turn"), 360},
};

} // namespace

std::optional<double> degreesOf(QLatin1String unit)
{
    for (const AngleUnit &known : angleUnits)
        if (unit.compare(known.name, Qt::CaseInsensitive) == 0)
            return known.degrees;
    return std::nullopt;
}

std::optional<double> parseAngle(QStringView text)
{
    const Latin1Text bytes(text);
    Cursor cursor = bytes.cursor();
    cursor.skipSpace();
    double value = 0;
    if (!readNumber(cursor, &value))
        return std::nullopt;
    const QLatin1String unit = cursor.takeWord();
    cursor.skipSpace();
    if (!cursor.atEnd())
        return std::nullopt;
    if (unit.isEmpty())
        return value;
    const std::optional<double> degrees = degreesOf(unit);
    return degrees ? std::make_optional(value * *degrees) : std::nullopt;
}

} // namespace Svg
