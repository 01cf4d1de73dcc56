#include "grammar/colorfunctions.h"

#include "grammar/angles.h"
#include "grammar/calculations.h"
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
    /// The legacy syntax with commas, without missing components.
    bool commas = false;
    /// Names of the origin colour's components; empty without an origin.
    CalculationNames names;
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

bool calculateComponent(Cursor &cursor, const CalculationNames &names, Component *component)
{
    const std::optional<CalculatedNumber> result = readCalculation(cursor, names);
    if (!result)
        return false;
    component->value = result->value;
    component->kind = result->kind == CalculatedNumber::Percent ? Component::Percent
                      : result->kind == CalculatedNumber::Angle ? Component::Angle
                                                                : Component::Number;
    return true;
}

bool readWordComponent(Cursor &cursor, const CalculationNames &names, Component *component)
{
    Cursor probe = cursor;
    const QString word = QString(probe.takeWord()).toLower();
    if (isDigit(probe.peek()) || probe.peek() == '(')
        return calculateComponent(cursor, names, component);
    cursor = probe;
    for (const auto &[name, value] : names) {
        if (word != name)
            continue;
        *component = {Component::Number, value};
        return true;
    }
    *component = {Component::None, 0};
    return word == QLatin1String("none");
}

bool readComponent(Cursor &cursor, const CalculationNames &names, Component *component)
{
    if (isLetter(cursor.peek()))
        return readWordComponent(cursor, names, component);
    if (!readNumber(cursor, &component->value))
        return false;
    if (cursor.take('%')) {
        component->kind = Component::Percent;
        return true;
    }
    return takeAngleUnit(cursor, component);
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
        if (!readComponent(cursor, function->names, &function->components[i]))
            return false;
        cursor.skipSpace();
    }
    if (cursor.take(function->commas ? ',' : '/')) {
        cursor.skipSpace();
        if (!readComponent(cursor, function->names, &function->alpha))
            return false;
        cursor.skipSpace();
    }
    // The end of the text closes an open function (CSS Syntax 3 §5.4.9).
    return cursor.take(')') || cursor.atEnd();
}

/// Names and factors of the components of a space.
struct SpaceNames
{
    QLatin1String function;
    QLatin1String space;
    QLatin1String names[componentCount];
    double scale[componentCount];
};

const SpaceNames spaceNames[] = {
    {QLatin1String("rgb"),
     QLatin1String("srgb"),
     {QLatin1String("r"), QLatin1String("g"), QLatin1String("b")},
     {255, 255, 255}},
    {QLatin1String("hsl"),
     QLatin1String("hsl"),
     {QLatin1String("h"), QLatin1String("s"), QLatin1String("l")},
     {1, 100, 100}},
    {QLatin1String("hwb"),
     QLatin1String("hwb"),
     {QLatin1String("h"), QLatin1String("w"), QLatin1String("b")},
     {1, 100, 100}},
    {QLatin1String("lab"),
     QLatin1String("lab"),
     {QLatin1String("l"), QLatin1String("a"), QLatin1String("b")},
     {1, 1, 1}},
    {QLatin1String("oklab"),
     QLatin1String("oklab"),
     {QLatin1String("l"), QLatin1String("a"), QLatin1String("b")},
     {1, 1, 1}},
    {QLatin1String("lch"),
     QLatin1String("lch"),
     {QLatin1String("l"), QLatin1String("c"), QLatin1String("h")},
     {1, 1, 1}},
    {QLatin1String("oklch"),
     QLatin1String("oklch"),
     {QLatin1String("l"), QLatin1String("c"), QLatin1String("h")},
     {1, 1, 1}},
    {QLatin1String("xyz"),
     QLatin1String(),
     {QLatin1String("x"), QLatin1String("y"), QLatin1String("z")},
     {1, 1, 1}},
    {QLatin1String("color"),
     QLatin1String(),
     {QLatin1String("r"), QLatin1String("g"), QLatin1String("b")},
     {1, 1, 1}},
};

// "rgba" and "hsla" are other names of "rgb" and "hsl".
const SpaceNames *namesOf(const ColorFunction &function)
{
    QString name = function.name;
    if (name == QLatin1String("rgba") || name == QLatin1String("hsla"))
        name.chop(1);
    if (function.space.startsWith(QLatin1String("xyz")))
        name = QStringLiteral("xyz");
    for (const SpaceNames &known : spaceNames)
        if (name == known.function)
            return &known;
    return nullptr;
}

bool nameComponents(const QColor &origin, ColorFunction *function)
{
    const SpaceNames *names = namesOf(*function);
    if (!names)
        return false;
    const std::optional<ColorComponents> components =
        componentsIn(names->space.isEmpty() ? function->space : QString(names->space), origin);
    if (!components)
        return false;
    const double values[] = {components->a, components->b, components->c};
    // The hue of a grey counts as 0.
    for (int i = 0; i < componentCount; ++i)
        function->names.append({names->names[i], qIsNaN(values[i]) ? 0 : values[i] * names->scale[i]});
    function->names.append({QLatin1String("alpha"), origin.alphaF()});
    function->alpha.value = origin.alphaF();
    return true;
}

// Reads "from <colour>"; also true if there is none.
bool takeOrigin(Cursor &cursor, const ColorContext &context, std::optional<QColor> *origin)
{
    Cursor probe = cursor;
    if (probe.takeWord().compare(QLatin1String("from"), Qt::CaseInsensitive) != 0 || !isSpace(probe.peek()))
        return true;
    probe.skipSpace();
    *origin = readInnerColor(probe, context);
    cursor = probe;
    cursor.skipSpace();
    return origin->has_value();
}

bool readFunction(Cursor cursor, const ColorContext &context, ColorFunction *function)
{
    function->name = QString(cursor.takeWord()).toLower();
    if (!cursor.take('('))
        return false;
    cursor.skipSpace();
    std::optional<QColor> origin;
    if (!takeOrigin(cursor, context, &origin))
        return false;
    if (function->name == QLatin1String("color"))
        function->space = takeSpaceName(cursor);
    if ((origin && !nameComponents(*origin, function)) || !readComponents(cursor, function))
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

// Hues without a unit are degrees; the others are percentages with or without the sign (CSS Color 4 §7, §8).
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
    return colorOfHsl({c[0].value, second, third});
}

/// Values of 100 % for the components of a function.
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

std::optional<QColor> functionColor(Cursor cursor, const ColorContext &context)
{
    Cursor mixing = cursor;
    if (mixing.takeWord().compare(QLatin1String("color"), Qt::CaseInsensitive) == 0 && mixing.take('-')) {
        const bool isMix = mixing.takeWord().compare(QLatin1String("mix"), Qt::CaseInsensitive) == 0;
        const std::optional<QColor> mixed =
            isMix && mixing.take('(') ? readColorMix(mixing, context) : std::nullopt;
        mixing.skipSpace();
        return mixing.atEnd() ? mixed : std::nullopt;
    }
    ColorFunction function;
    if (!readFunction(cursor, context, &function) || (function.commas && hasNone(function)) ||
        (function.commas && !function.names.isEmpty()))
        return std::nullopt;
    std::optional<QColor> color = opaqueColor(function);
    if (color)
        color->setAlphaF(qBound(0.0, function.alpha.of(1), 1.0));
    return color;
}

} // namespace Svg
