#include "grammar/lengths.h"

#include "grammar/calculations.h"
#include "grammar/inputlimits.h"
#include "grammar/numbers.h"

#include <QtCore/QtMath>

namespace Svg {

namespace {

struct UnitName
{
    QLatin1String name;
    Unit unit;
    double factor;
};

constexpr double pixelsPerInch = 96;
constexpr double centimetresPerInch = 2.54;
/// Default height of a lower-case x, in font sizes.
constexpr double exPerEm = 0.5;
/// Default width of a "0", in font sizes (CSS Values 3 §5.1.1).
constexpr double chPerEm = 0.5;

const UnitName unitNames[] = {
    {QLatin1String("px"), Unit::User, 1},
    {QLatin1String("pt"), Unit::User, pixelsPerInch / 72},
    {QLatin1String("pc"), Unit::User, pixelsPerInch / 6},
    {QLatin1String("mm"), Unit::User, pixelsPerInch / centimetresPerInch / 10},
    {QLatin1String("cm"), Unit::User, pixelsPerInch / centimetresPerInch},
    {QLatin1String("in"), Unit::User, pixelsPerInch},
    {QLatin1String("em"), Unit::Em, 1},
    {QLatin1String("ex"), Unit::Ex, 1},
    {QLatin1String("q"), Unit::User, pixelsPerInch / centimetresPerInch / 40},
    {QLatin1String("ch"), Unit::Ch, 1},
    {QLatin1String("rem"), Unit::Rem, 1},
    {QLatin1String("vw"), Unit::ViewWidth, 1},
    {QLatin1String("vh"), Unit::ViewHeight, 1},
    {QLatin1String("vmin"), Unit::ViewMin, 1},
    {QLatin1String("vmax"), Unit::ViewMax, 1},
};

bool readUnit(Cursor &cursor, Length *length)
{
    if (cursor.take('%')) {
        length->unit = Unit::Percent;
        return true;
    }
    const QLatin1String word = cursor.takeWord();
    if (word.isEmpty())
        return true;
    for (const UnitName &known : unitNames) {
        if (word.compare(known.name, Qt::CaseInsensitive) != 0)
            continue;
        length->unit = known.unit;
        length->value *= known.factor;
        return true;
    }
    return false;
}

double percentageBase(Axis axis, const QSizeF &viewport)
{
    switch (axis) {
    case Axis::Horizontal:
        return viewport.width();
    case Axis::Vertical:
        return viewport.height();
    case Axis::Diagonal:
        break;
    }
    return std::hypot(viewport.width(), viewport.height()) / M_SQRT2;
}

double unbounded(const Length &length, Axis axis, const LengthContext &context)
{
    if (length.deferred)
        return calculated(*length.deferred, percentageBase(axis, context.viewport), context.fontSize);
    switch (length.unit) {
    case Unit::User:
        break;
    case Unit::Percent:
        return length.value / 100 * percentageBase(axis, context.viewport);
    case Unit::Em:
        return length.value * context.fontSize;
    case Unit::Ex:
        return length.value * context.fontSize * exPerEm;
    case Unit::Ch:
        return length.value * context.fontSize * chPerEm;
    case Unit::Rem:
        return length.value * context.rootFontSize;
    case Unit::ViewWidth:
        return length.value / 100 * context.viewport.width();
    case Unit::ViewHeight:
        return length.value / 100 * context.viewport.height();
    case Unit::ViewMin:
        return length.value / 100 * qMin(context.viewport.width(), context.viewport.height());
    case Unit::ViewMax:
        return length.value / 100 * qMax(context.viewport.width(), context.viewport.height());
    }
    return length.value;
}

} // namespace

QLatin1String unitText(Unit unit)
{
    if (unit == Unit::Percent)
        return QLatin1String("%");
    const auto known = std::find_if(std::begin(unitNames), std::end(unitNames),
                                    [unit](const UnitName &name) { return name.unit == unit; });
    return unit == Unit::User ? QLatin1String("") : known->name;
}

bool readLength(Cursor &cursor, Length *length)
{
    Length result;
    Cursor probe = cursor;
    if (!readNumber(probe, &result.value) || !readUnit(probe, &result))
        return false;
    *length = result;
    cursor = probe;
    return true;
}

std::optional<Length> parseLength(QStringView text)
{
    const Latin1Text bytes(text);
    Cursor cursor = bytes.cursor();
    Length length;
    cursor.skipSpace();
    if (isLetter(cursor.peek()))
        return parseCalculation(text);
    if (!readLength(cursor, &length))
        return std::nullopt;
    cursor.skipSpace();
    if (!cursor.atEnd())
        return std::nullopt;
    return length;
}

double toUserUnits(const Length &length, Axis axis, const LengthContext &context)
{
    const double added = length.plusUser + length.plusEm * context.fontSize;
    return qBound(-Limits::coordinate, unbounded(length, axis, context) + added, Limits::coordinate);
}

} // namespace Svg
