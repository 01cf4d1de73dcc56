#include "animation/animatedvalue.h"

#include "animation/pathvalue.h"
#include "grammar/colors.h"
#include "grammar/inputlimits.h"
#include "grammar/numbers.h"
#include "properties/propertytable.h"

#include <cmath>
#include <numeric>

namespace Svg {

namespace {

constexpr double fullChannel = 255;

/// Letters that represent units in a form.
struct UnitLetter
{
    Unit unit;
    QChar letter;
};

const UnitLetter unitLetters[] = {
    {Unit::User, QLatin1Char('u')},
    {Unit::Percent, QLatin1Char('p')},
    {Unit::Em, QLatin1Char('m')},
    {Unit::Ex, QLatin1Char('x')},
};

Unit unitOf(QChar letter)
{
    for (const UnitLetter &known : unitLetters)
        if (known.letter == letter)
            return known.unit;
    return Unit::User;
}

QChar letterOf(Unit unit)
{
    for (const UnitLetter &known : unitLetters)
        if (known.unit == unit)
            return known.letter;
    return unitLetters[0].letter;
}

AnimatedValue parseColorValue(const QString &text, const ValueContext &context)
{
    const bool current = text.compare(QLatin1String("currentColor"), Qt::CaseInsensitive) == 0;
    const std::optional<QColor> color = current ? context.currentColor : parseColor(text);
    if (!color || !color->isValid())
        return replacedValue(text);
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
            return replacedValue(text);
        value.numbers.append(length.value);
        value.form += letterOf(length.unit);
        cursor.skipCommaSpace();
    }
    return value.numbers.isEmpty() ? replacedValue(text) : value;
}

/// Number of arguments of a function when all are given.
int argumentCount(TransformFunction::Kind kind)
{
    switch (kind) {
    case TransformFunction::Rotate:
        return 3;
    case TransformFunction::SkewX:
    case TransformFunction::SkewY:
        return 1;
    default:
        return 2;
    }
}

/// Omitted arguments get their default values (SVG 1.1 §7.6).
AnimatedValue parseTransformValue(const QString &text, TransformFunction::Kind kind)
{
    const std::optional<QVector<double>> numbers = parseNumberList(text);
    const int most = argumentCount(kind);
    const bool complete = numbers && !numbers->isEmpty() && numbers->size() <= most;
    if (!complete || (kind == TransformFunction::Rotate && numbers->size() == 2))
        return replacedValue(text);
    AnimatedValue value;
    value.kind = AnimatedValue::Numbers;
    value.numbers = *numbers;
    while (value.numbers.size() < most)
        value.numbers.append(kind == TransformFunction::Scale ? value.numbers.constFirst() : 0);
    value.form.fill(letterOf(Unit::User), most);
    return value;
}

QColor colorOf(const AnimatedValue &value)
{
    const auto channel = [&](int i) { return int(std::lround(qBound(0.0, value.numbers.at(i), fullChannel))); };
    return QColor(channel(0), channel(1), channel(2), channel(3));
}

QVector<Length> lengthsOf(const AnimatedValue &value, bool positive)
{
    QVector<Length> lengths;
    for (int i = 0; i < value.numbers.size(); ++i) {
        const double number = positive ? qMax(0.0, value.numbers.at(i)) : value.numbers.at(i);
        lengths.append({number, unitOf(value.form.at(i))});
    }
    return lengths;
}

TypedValue typedValue(const AnimatedValue &value, const ValueContext &context)
{
    if (value.kind == AnimatedValue::Color)
        return colorOf(value);
    if (value.kind == AnimatedValue::Path)
        return pathOf(value);
    return lengthsOf(value, context.positive);
}

void toUserUnits(AnimatedValue *value, int i, const ValueContext &context)
{
    const Length length{value->numbers.at(i), unitOf(value->form.at(i))};
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

ValueContext::Grammar grammarOf(PropertyAnimation::Kind kind)
{
    if (kind == PropertyAnimation::Discrete)
        return ValueContext::Words;
    return kind == PropertyAnimation::Colors ? ValueContext::Colors : ValueContext::Lengths;
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
    const AttributeId id = attributeId(attribute);
    if (isProperty(id)) {
        const PropertyAnimation &animation = propertyOf(id).animation;
        context.grammar = grammarOf(animation.kind);
        context.repeats = animation.kind == PropertyAnimation::RepeatedLengths;
        context.positive = animation.positive;
        return context;
    }
    if (id == AttributeId::D)
        context.grammar = ValueContext::PathData;
    if (isOneOf(attribute, {"x", "x1", "x2", "cx", "rx", "fx", "dx", "width", "refX", "markerWidth"}))
        context.axis = Axis::Horizontal;
    else if (isOneOf(attribute, {"y", "y1", "y2", "cy", "ry", "fy", "dy", "height", "refY", "markerHeight"}))
        context.axis = Axis::Vertical;
    context.positive = isOneOf(attribute, {"width", "height", "r", "rx", "ry", "markerWidth", "markerHeight"});
    return context;
}

ValueContext transformContext(const QString &type)
{
    const QByteArray name = type.toLatin1();
    const auto kind = transformKind(QLatin1String(name));
    ValueContext context;
    context.grammar = ValueContext::Transforms;
    context.function = kind && *kind != TransformFunction::Matrix ? *kind : TransformFunction::Translate;
    return context;
}

AnimatedValue animatedValue(const TypedValue &value)
{
    AnimatedValue result;
    if (const auto *color = std::get_if<QColor>(&value)) {
        result.kind = AnimatedValue::Color;
        result.numbers = {double(color->red()), double(color->green()), double(color->blue()),
                          double(color->alpha())};
    } else if (const auto *lengths = std::get_if<QVector<Length>>(&value)) {
        result.kind = AnimatedValue::Numbers;
        for (const Length &length : *lengths) {
            result.numbers.append(length.value);
            result.form += letterOf(length.unit);
        }
    }
    return result;
}

AnimatedValue replacedValue(const QString &text)
{
    AnimatedValue value;
    value.text = text;
    return value;
}

AnimatedValue parseAnimatedValue(const QString &text, const ValueContext &context)
{
    const QString trimmed = text.trimmed();
    if (context.inherited && trimmed == QLatin1String("inherit"))
        return *context.inherited;
    switch (context.grammar) {
    case ValueContext::Colors:
        return parseColorValue(trimmed, context);
    case ValueContext::PathData:
        return parsePathValue(trimmed);
    case ValueContext::Transforms:
        return parseTransformValue(trimmed, context.function);
    case ValueContext::Words:
        return replacedValue(trimmed);
    case ValueContext::Lengths:
        break;
    }
    return parseNumbersValue(trimmed);
}

AttributeValue attributeValue(const AnimatedValue &value, const ValueContext &context)
{
    if (value.kind == AnimatedValue::Text)
        return value.text;
    const TypedValue typed = typedValue(value, context);
    // A result that is not finite is an error of the attribute, as it is in a text.
    if (!std::all_of(value.numbers.begin(), value.numbers.end(), [](double number) { return qIsFinite(number); }))
        return valueText(typed);
    const auto *lengths = std::get_if<QVector<Length>>(&typed);
    const bool isNumber = lengths && lengths->size() == 1 && lengths->constFirst().unit == Unit::User;
    return isNumber ? AttributeValue(lengths->constFirst().value) : AttributeValue(typed);
}

TransformFunction transformFunction(const AnimatedValue &value, const ValueContext &context)
{
    TransformFunction function;
    function.kind = context.function;
    function.count = value.numbers.size();
    std::copy(value.numbers.begin(), value.numbers.end(), function.arguments.begin());
    return function;
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

// Both ends are reached exactly.
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

// The distance of rotations is that of their angles, wherever their centres are.
double distanceBetween(const AnimatedValue &a, const AnimatedValue &b, const ValueContext &context)
{
    const int count = context.function == TransformFunction::Rotate ? 1 : a.numbers.size();
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
