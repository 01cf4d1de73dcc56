#include "animation/animatedvalue.h"

#include "animation/pathvalue.h"
#include "grammar/colors.h"
#include "grammar/inputlimits.h"
#include "grammar/numbers.h"

#include <cmath>
#include <numeric>

namespace Svg {

namespace {

constexpr double fullChannel = 255;

const QLatin1String rotateName("rotate");
const QLatin1String scaleName("scale");
const QLatin1String translateName("translate");

/// Letters that stand for units in a form, and the text that they have in an attribute.
struct UnitLetter
{
    Unit unit;
    QChar letter;
    QLatin1String text;
};

const UnitLetter unitLetters[] = {
    {Unit::User, QLatin1Char('u'), QLatin1String("")},
    {Unit::Percent, QLatin1Char('p'), QLatin1String("%")},
    {Unit::Em, QLatin1Char('m'), QLatin1String("em")},
    {Unit::Ex, QLatin1Char('x'), QLatin1String("ex")},
};

const UnitLetter &unitLetter(QChar letter)
{
    for (const UnitLetter &known : unitLetters)
        if (known.letter == letter)
            return known;
    return unitLetters[0];
}

QChar letterOf(Unit unit)
{
    for (const UnitLetter &known : unitLetters)
        if (known.unit == unit)
            return known.letter;
    return unitLetters[0].letter;
}

AnimatedValue plainText(const QString &text)
{
    AnimatedValue value;
    value.text = text;
    return value;
}

AnimatedValue parseColorValue(const QString &text, const ValueContext &context)
{
    const bool current = text.compare(QLatin1String("currentColor"), Qt::CaseInsensitive) == 0;
    const std::optional<QColor> color = current ? context.currentColor : parseColor(text);
    if (!color || !color->isValid())
        return plainText(text);
    AnimatedValue value;
    value.kind = AnimatedValue::Color;
    value.numbers = {color->redF() * fullChannel, color->greenF() * fullChannel, color->blueF() * fullChannel,
                     color->alphaF() * fullChannel};
    return value;
}

AnimatedValue parseNumbersValue(const QString &text)
{
    const Latin1Text bytes(text);
    Cursor cursor = bytes.cursor();
    AnimatedValue value;
    value.kind = AnimatedValue::Numbers;
    cursor.skipSpace();
    while (!cursor.atEnd()) {
        Length length;
        if (!readLength(cursor, &length))
            return plainText(text);
        value.numbers.append(length.value);
        value.form += letterOf(length.unit);
        cursor.skipCommaSpace();
    }
    return value.numbers.isEmpty() ? plainText(text) : value;
}

/// Arguments that are left out get the value that they stand for (SVG 1.1 §7.6).
AnimatedValue parseTransformValue(const QString &text, QLatin1String function)
{
    const std::optional<QVector<double>> numbers = parseNumberList(text);
    const bool skew = function.latin1()[1] == 'k';
    const int most = function == rotateName ? 3 : skew ? 1 : 2;
    const bool complete = numbers && !numbers->isEmpty() && numbers->size() <= most;
    if (!complete || (function == rotateName && numbers->size() == 2))
        return plainText(text);
    AnimatedValue value;
    value.kind = AnimatedValue::Numbers;
    value.numbers = *numbers;
    while (value.numbers.size() < most)
        value.numbers.append(function == scaleName ? value.numbers.constFirst() : 0);
    value.form.fill(letterOf(Unit::User), most);
    return value;
}

QString colorText(const AnimatedValue &value)
{
    const auto channel = [&](int i) { return int(std::lround(qBound(0.0, value.numbers.at(i), fullChannel))); };
    const QColor color(channel(0), channel(1), channel(2), channel(3));
    const QString name = color.name(QColor::HexArgb);
    // Attributes have the alpha behind the colour.
    return color.alpha() == 255 ? color.name() : QLatin1Char('#') + name.mid(3) + name.mid(1, 2);
}

QString numbersText(const AnimatedValue &value, bool positive)
{
    QString text;
    for (int i = 0; i < value.numbers.size(); ++i) {
        if (i > 0)
            text += QLatin1Char(' ');
        const double number = positive ? qMax(0.0, value.numbers.at(i)) : value.numbers.at(i);
        text += numberText(number) + unitLetter(value.form.at(i)).text;
    }
    return text;
}

void toUserUnits(AnimatedValue *value, int i, const ValueContext &context)
{
    const Length length{value->numbers.at(i), unitLetter(value->form.at(i)).unit};
    value->numbers[i] = Svg::toUserUnits(length, context.axis, context.lengths);
    value->form[i] = letterOf(Unit::User);
}

void repeatTo(AnimatedValue *value, int count)
{
    const QVector<double> numbers = value->numbers;
    value->form = value->form.repeated(count / numbers.size());
    while (value->numbers.size() < count)
        value->numbers += numbers;
}

bool isOneOf(const QString &name, std::initializer_list<const char *> names)
{
    return std::any_of(names.begin(), names.end(), [&](const char *known) { return name == QLatin1String(known); });
}

} // namespace

ValueContext valueContext(const QString &attribute, const LengthContext &lengths, const QColor &currentColor)
{
    ValueContext context;
    context.lengths = lengths;
    context.currentColor = currentColor;
    if (isOneOf(attribute, {"fill", "stroke", "color", "stop-color", "flood-color", "lighting-color"}))
        context.grammar = ValueContext::Colors;
    else if (attribute == QLatin1String("d"))
        context.grammar = ValueContext::PathData;
    if (isOneOf(attribute, {"x", "x1", "x2", "cx", "rx", "fx", "dx", "width", "refX", "markerWidth"}))
        context.axis = Axis::Horizontal;
    else if (isOneOf(attribute, {"y", "y1", "y2", "cy", "ry", "fy", "dy", "height", "refY", "markerHeight"}))
        context.axis = Axis::Vertical;
    context.repeats = attribute == QLatin1String("stroke-dasharray");
    context.positive = isOneOf(attribute, {"width", "height", "r", "rx", "ry", "stroke-width", "font-size",
                                           "stroke-dasharray", "markerWidth", "markerHeight"});
    return context;
}

ValueContext transformContext(const QString &type)
{
    static const QLatin1String names[] = {rotateName, scaleName, QLatin1String("skewX"), QLatin1String("skewY")};
    ValueContext context;
    context.grammar = ValueContext::TransformFunction;
    context.function = translateName;
    for (const QLatin1String name : names)
        if (type == name)
            context.function = name;
    return context;
}

AnimatedValue parseAnimatedValue(const QString &text, const ValueContext &context)
{
    const bool inherits = !context.inherited.isEmpty() && text.trimmed() == QLatin1String("inherit");
    const QString trimmed = inherits ? context.inherited : text.trimmed();
    switch (context.grammar) {
    case ValueContext::Colors:
        return parseColorValue(trimmed, context);
    case ValueContext::PathData:
        return parsePathValue(trimmed);
    case ValueContext::TransformFunction:
        return parseTransformValue(trimmed, context.function);
    case ValueContext::Lengths:
        break;
    }
    return parseNumbersValue(trimmed);
}

QString attributeText(const AnimatedValue &value, const ValueContext &context)
{
    switch (value.kind) {
    case AnimatedValue::Text:
        return value.text;
    case AnimatedValue::Color:
        return colorText(value);
    case AnimatedValue::Path:
        return pathText(value);
    case AnimatedValue::Numbers:
        break;
    }
    const QString numbers = numbersText(value, context.positive);
    return context.grammar == ValueContext::TransformFunction ? context.function + '(' + numbers + ')' : numbers;
}

bool makeAlike(AnimatedValue *a, AnimatedValue *b, const ValueContext &context)
{
    if (a->kind == AnimatedValue::Text || a->kind != b->kind)
        return false;
    if (a->form == b->form)
        return a->numbers.size() == b->numbers.size();
    if (a->kind != AnimatedValue::Numbers)
        return false;
    if (context.repeats) {
        const int count = std::lcm(a->numbers.size(), b->numbers.size());
        if (count > Limits::animationValues)
            return false;
        repeatTo(a, count);
        repeatTo(b, count);
    }
    if (a->numbers.size() != b->numbers.size())
        return false;
    for (int i = 0; i < a->numbers.size(); ++i) {
        if (a->form.at(i) == b->form.at(i))
            continue;
        toUserUnits(a, i, context);
        toUserUnits(b, i, context);
    }
    return true;
}

AnimatedValue sumOf(const AnimatedValue &a, const AnimatedValue &b, double factor)
{
    AnimatedValue result = a;
    for (int i = 0; i < result.numbers.size(); ++i)
        result.numbers[i] += b.numbers.at(i) * factor;
    return result;
}

// Both ends are met exactly.
AnimatedValue between(const AnimatedValue &a, const AnimatedValue &b, double share)
{
    if (share <= 0)
        return a;
    if (share >= 1)
        return b;
    AnimatedValue result = a;
    for (int i = 0; i < result.numbers.size(); ++i)
        result.numbers[i] += (b.numbers.at(i) - a.numbers.at(i)) * share;
    return result;
}

// Turns are as far apart as their angles, wherever their centres are.
double distanceBetween(const AnimatedValue &a, const AnimatedValue &b, const ValueContext &context)
{
    const int count = context.function == rotateName ? 1 : a.numbers.size();
    double squares = 0;
    for (int i = 0; i < count; ++i) {
        const double difference = b.numbers.at(i) - a.numbers.at(i);
        squares += difference * difference;
    }
    return std::sqrt(squares);
}

AnimatedValue zeroOf(const AnimatedValue &value)
{
    AnimatedValue zero = value;
    zero.numbers.fill(0);
    return zero;
}

} // namespace Svg
