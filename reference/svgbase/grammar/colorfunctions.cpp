#include "grammar/colorfunctions.h"
#include "grammar/angles.h"

#include "grammar/colorspaces.h"
#include "grammar/numbers.h"

#include <QtCore/QtMath>

#include <cmath>

namespace Svg {

namespace {

constexpr int componentCount = 3;

struct Component
{
    enum Kind { Number, Percent, Angle, None };
    Kind kind = Number;
    /// Degrees for an angle.
    double value = 0;

    bool isPlain() const { return kind == Number || kind == None; }
    /// The value with percentages as shares of `whole`.
    double of(double whole) const { return kind == Percent ? value / 100 * whole : value; }
};

struct ColorFunction
{
    QString name;
    /// Of color().
    QString space;
    Component components[componentCount];
    Component alpha{Component::Number, 1};
    /// The older way to write it, with commas, which knows no missing components.
    bool commas = false;
};

bool takeAngleUnit(Cursor &cursor, Component *component)
{
    const QLatin1String unit = cursor.takeWord();
    if (unit.isEmpty())
        return true;
    const std::optional<double> degrees = degreesOf(unit);
    if (!degrees)
        return false;
    component->kind = Component::Angle;
    component->value *= *degrees;
    return true;
}

bool readComponent(Cursor &cursor, Component *component)
{
    if (isLetter(cursor.peek())) {
        *component = {Component::None, 0};
        return cursor.takeWord().compare(QLatin1String("none"), Qt::CaseInsensitive) == 0;
    }
    if (!readNumber(cursor, &component->value))
        return false;
    if (cursor.take('%')) {
        component->kind = Component::Percent;
        return true;
    }
    return takeAngleUnit(cursor, component);
}

// Names of spaces have digits and hyphens in them.
QString takeSpaceName(Cursor &cursor)
{
    const char *begin = cursor.at;
    while (isLetter(cursor.peek()) || isDigit(cursor.peek()) || cursor.peek() == '-')
        ++cursor.at;
    const QString name = QString::fromLatin1(begin, int(cursor.at - begin)).toLower();
    cursor.skipSpace();
    return name;
}

// All components are separated by commas, or all by spaces and the alpha by a slash.
bool readComponents(Cursor &cursor, ColorFunction *function)
{
    for (int i = 0; i < componentCount; ++i) {
        const bool comma = i > 0 && cursor.take(',');
        if (i == 1)
            function->commas = comma;
        else if (i > 1 && comma != function->commas)
            return false;
        cursor.skipSpace();
        if (!readComponent(cursor, &function->components[i]))
            return false;
        cursor.skipSpace();
    }
    if (cursor.take(function->commas ? ',' : '/')) {
        cursor.skipSpace();
        if (!readComponent(cursor, &function->alpha))
            return false;
        cursor.skipSpace();
    }
    return cursor.take(')');
}

bool readFunction(Cursor cursor, ColorFunction *function)
{
    function->name = QString(cursor.takeWord()).toLower();
    if (!cursor.take('('))
        return false;
    cursor.skipSpace();
    if (function->name == QLatin1String("color"))
        function->space = takeSpaceName(cursor);
    if (!readComponents(cursor, function))
        return false;
    cursor.skipSpace();
    return cursor.atEnd() && function->alpha.kind != Component::Angle;
}

bool hasNone(const ColorFunction &function)
{
    const Component *c = function.components;
    return c[0].kind == Component::None || c[1].kind == Component::None || c[2].kind == Component::None ||
           function.alpha.kind == Component::None;
}

bool isAngle(const Component &component)
{
    return component.kind == Component::Angle;
}

// Numbers and percentages are mixed only without commas (CSS Color 4 §5).
std::optional<QColor> rgbColor(const ColorFunction &function)
{
    const Component *c = function.components;
    const bool mixed = c[0].isPlain() != c[1].isPlain() || c[1].isPlain() != c[2].isPlain();
    if (isAngle(c[0]) || isAngle(c[1]) || isAngle(c[2]) || (function.commas && mixed))
        return std::nullopt;
    const auto channel = [](const Component &component) {
        constexpr double highest = 255;
        return int(std::lround(qBound(0.0, component.of(highest), highest)));
    };
    return QColor(channel(c[0]), channel(c[1]), channel(c[2]));
}

// Hues are degrees where they have no unit; the others are percentages with or without the sign (CSS Color 4 §7,
// §8).
std::optional<QColor> hueColor(const ColorFunction &function)
{
    const Component *c = function.components;
    if (c[0].kind == Component::Percent || isAngle(c[1]) || isAngle(c[2]))
        return std::nullopt;
    const double second = qMax(0.0, c[1].value / 100);
    const double third = qMax(0.0, c[2].value / 100);
    if (function.name == QLatin1String("hwb")) {
        if (function.commas)
            return std::nullopt;
        return colorOfHwb({c[0].value, second, third});
    }
    const double turn = c[0].value / 360 - std::floor(c[0].value / 360);
    return QColor::fromHslF(qBound(0.0, turn, 1.0), qMin(second, 1.0), qMin(third, 1.0)).toRgb();
}

/// What 100 % of the components of a function are.
struct LabScale
{
    double lightness;
    double others;
};

// CSS Color 4 §9.3, §9.4.
std::optional<QColor> labColor(const ColorFunction &function)
{
    const bool ok = function.name.startsWith(QLatin1String("ok"));
    const bool polar = function.name.endsWith(QLatin1String("lch"));
    const LabScale scale = ok ? LabScale{1, 0.4} : LabScale{100, polar ? 150.0 : 125.0};
    const Component *c = function.components;
    if (function.commas || isAngle(c[0]) || isAngle(c[1]) ||
        (polar ? c[2].kind == Component::Percent : isAngle(c[2])))
        return std::nullopt;
    ColorComponents lab{qBound(0.0, c[0].of(scale.lightness), scale.lightness), c[1].of(scale.others),
                        polar ? c[2].value : c[2].of(scale.others)};
    if (polar) {
        lab.b = qMax(0.0, lab.b);
        lab = rectangular(lab);
    }
    return ok ? colorOfOklab(lab) : colorOfLab(lab);
}

std::optional<QColor> spaceColor(const ColorFunction &function)
{
    const Component *c = function.components;
    if (function.commas || isAngle(c[0]) || isAngle(c[1]) || isAngle(c[2]))
        return std::nullopt;
    return colorOfSpace(function.space, {c[0].of(1), c[1].of(1), c[2].of(1)});
}

std::optional<QColor> opaqueColor(const ColorFunction &function)
{
    const QString &name = function.name;
    if (name == QLatin1String("rgb") || name == QLatin1String("rgba"))
        return rgbColor(function);
    if (name == QLatin1String("hsl") || name == QLatin1String("hsla") || name == QLatin1String("hwb"))
        return hueColor(function);
    if (name == QLatin1String("lab") || name == QLatin1String("lch") || name == QLatin1String("oklab") ||
        name == QLatin1String("oklch"))
        return labColor(function);
    return name == QLatin1String("color") ? spaceColor(function) : std::nullopt;
}

} // namespace

std::optional<QColor> functionColor(Cursor cursor)
{
    ColorFunction function;
    if (!readFunction(cursor, &function) || (function.commas && hasNone(function)))
        return std::nullopt;
    std::optional<QColor> color = opaqueColor(function);
    if (color)
        color->setAlphaF(qBound(0.0, function.alpha.of(1), 1.0));
    return color;
}

} // namespace Svg
