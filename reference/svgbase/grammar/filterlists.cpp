#include "grammar/filterlists.h"

#include "grammar/angles.h"
#include "grammar/colors.h"
#include "grammar/inputlimits.h"
#include "grammar/paints.h"

namespace Svg {

namespace {

struct FunctionName
{
    QLatin1String name;
    FilterFunction::Kind kind;
};

const FunctionName functionNames[] = {
    {QLatin1String("blur"), FilterFunction::Blur},
    {QLatin1String("brightness"), FilterFunction::Brightness},
    {QLatin1String("contrast"), FilterFunction::Contrast},
    {QLatin1String("drop-shadow"), FilterFunction::DropShadow},
    {QLatin1String("grayscale"), FilterFunction::Grayscale},
    {QLatin1String("hue-rotate"), FilterFunction::HueRotate},
    {QLatin1String("invert"), FilterFunction::Invert},
    {QLatin1String("opacity"), FilterFunction::Opacity},
    {QLatin1String("saturate"), FilterFunction::Saturate},
    {QLatin1String("sepia"), FilterFunction::Sepia},
};

// Words that end at white space outside of parentheses, or at a closing parenthesis.
QVector<QStringView> words(QStringView text)
{
    QVector<QStringView> result;
    int depth = 0;
    qsizetype begin = -1;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        const bool closed = begin >= 0 && depth == 0 && text[i - 1] == QLatin1Char(')');
        if (closed && i < text.size() && !text[i].isSpace()) {
            result.append(text.mid(begin, i - begin));
            begin = -1;
        }
        const bool ends = i == text.size() || (depth == 0 && text[i].isSpace());
        if (ends && begin >= 0)
            result.append(text.mid(begin, i - begin));
        if (ends) {
            begin = -1;
            continue;
        }
        if (begin < 0)
            begin = i;
        depth += text[i] == QLatin1Char('(') ? 1 : text[i] == QLatin1Char(')') ? -1 : 0;
    }
    return result;
}

bool readAmount(QStringView text, FilterFunction *function)
{
    if (text.isEmpty())
        return true;
    const std::optional<Length> amount = parseLength(text);
    const bool share = amount && (amount->unit == Unit::User || amount->unit == Unit::Percent);
    // With a unit other than "%" it isn't a share.
    if (!share || amount->value < 0 || (amount->unit == Unit::User && text.back().isLetter()))
        return false;
    function->amount = amount->unit == Unit::Percent ? amount->value / 100 : amount->value;
    return true;
}

bool lacksUnit(QStringView text, double value, FilterUnits units)
{
    const bool bare = text.back().isDigit() || text.back() == QLatin1Char('.');
    return units == FilterUnits::Required && bare && value != 0;
}

std::optional<Length> parseFilterLength(QStringView text, FilterUnits units)
{
    const std::optional<Length> length = parseLength(text);
    return length && length->unit != Unit::Percent && !lacksUnit(text, length->value, units) ? length
                                                                                             : std::nullopt;
}

bool readHue(QStringView text, FilterUnits units, FilterFunction *function)
{
    function->amount = 0;
    if (text.isEmpty())
        return true;
    const std::optional<double> angle = parseAngle(text);
    if (!angle || lacksUnit(text, *angle, units))
        return false;
    function->amount = *angle;
    return true;
}

bool readBlur(QStringView text, FilterUnits units, FilterFunction *function)
{
    if (text.isEmpty())
        return true;
    const std::optional<Length> length = parseFilterLength(text, units);
    if (!length || length->value < 0)
        return false;
    function->lengths[0] = *length;
    return true;
}

bool readShadowColor(QStringView text, FilterFunction *function)
{
    if (text.compare(QLatin1String("currentColor"), Qt::CaseInsensitive) == 0)
        return true;
    const std::optional<QColor> color = parseColor(text);
    if (color)
        function->color = *color;
    return color.has_value();
}

// Two or three lengths, with a colour before or after them.
bool readShadow(QStringView text, FilterUnits units, FilterFunction *function)
{
    QVector<QStringView> parts = words(text);
    int lengths = 0;
    if (!parts.isEmpty() && !parseLength(parts.constFirst())) {
        if (!readShadowColor(parts.takeFirst(), function))
            return false;
    } else if (!parts.isEmpty() && !parseLength(parts.constLast()) &&
               !readShadowColor(parts.takeLast(), function)) {
        return false;
    }
    for (const QStringView part : qAsConst(parts)) {
        const std::optional<Length> length = parseFilterLength(part, units);
        if (!length || lengths == 3)
            return false;
        function->lengths[lengths++] = *length;
    }
    return lengths >= 2 && function->lengths[2].value >= 0;
}

bool readArguments(QStringView text, FilterUnits units, FilterFunction *function)
{
    switch (function->kind) {
    case FilterFunction::HueRotate:
        return readHue(text, units, function);
    case FilterFunction::Blur:
        return readBlur(text, units, function);
    case FilterFunction::DropShadow:
        return readShadow(text, units, function);
    default:
        return readAmount(text, function);
    }
}

bool readFunction(QStringView word, FilterUnits units, FilterFunction *function)
{
    function->id = functionReference(word);
    if (!function->id.isEmpty())
        return true;
    const qsizetype open = word.indexOf(QLatin1Char('('));
    if (open < 0 || !word.endsWith(QLatin1Char(')')))
        return false;
    for (const FunctionName &known : functionNames) {
        if (word.left(open).compare(known.name, Qt::CaseInsensitive) != 0)
            continue;
        function->kind = known.kind;
        return readArguments(word.mid(open + 1, word.size() - open - 2).trimmed(), units, function);
    }
    return false;
}

} // namespace

std::optional<QVector<FilterFunction>> parseFilterList(QStringView text, FilterUnits units)
{
    QVector<FilterFunction> list;
    const QVector<QStringView> items = words(text.trimmed());
    for (const QStringView word : items) {
        FilterFunction function;
        if (!readFunction(word, units, &function) || list.size() == Limits::filterPrimitives)
            return std::nullopt;
        list.append(function);
    }
    return list;
}

} // namespace Svg
