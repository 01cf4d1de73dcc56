#include "properties/paintproperties.h"

#include "grammar/angles.h"
#include "grammar/colors.h"
#include "grammar/fontfamilies.h"
#include "grammar/inputlimits.h"
#include "grammar/numbers.h"
#include "properties/propertyrows.h"

#include <cmath>
#include <numeric>

namespace Svg {

namespace {

const Keyword<Qt::PenCapStyle> caps[] = {
    {QLatin1String("butt"), Qt::FlatCap},
    {QLatin1String("round"), Qt::RoundCap},
    {QLatin1String("square"), Qt::SquareCap},
};

const Keyword<Qt::PenJoinStyle> joins[] = {
    {QLatin1String("miter"), Qt::SvgMiterJoin},
    // Cut at the limit; between straight lines, arcs look the same (SVG 2 §13.5.5).
    {QLatin1String("miter-clip"), Qt::MiterJoin},
    {QLatin1String("arcs"), Qt::MiterJoin},
    {QLatin1String("round"), Qt::RoundJoin},
    {QLatin1String("bevel"), Qt::BevelJoin},
};

const Keyword<Qt::FillRule> fillRules[] = {
    {QLatin1String("nonzero"), Qt::WindingFill},
    {QLatin1String("evenodd"), Qt::OddEvenFill},
};

const Keyword<bool> vectorEffects[] = {
    {QLatin1String("none"), true},
    {QLatin1String("non-scaling-stroke"), false},
};

const Keyword<PaintStep> paintSteps[] = {
    {QLatin1String("fill"), PaintStep::Fill},
    {QLatin1String("stroke"), PaintStep::Stroke},
    {QLatin1String("markers"), PaintStep::Markers},
};

const Keyword<TextAnchor> anchors[] = {
    {QLatin1String("start"), TextAnchor::Start},
    {QLatin1String("middle"), TextAnchor::Middle},
    {QLatin1String("end"), TextAnchor::End},
};

const Keyword<bool> visibilities[] = {
    {QLatin1String("visible"), true},
    {QLatin1String("hidden"), false},
    {QLatin1String("collapse"), false},
};

const Keyword<bool> fontStyles[] = {
    {QLatin1String("normal"), false},
    {QLatin1String("italic"), true},
    {QLatin1String("oblique"), true},
};

const Keyword<int> fontWeights[] = {
    {QLatin1String("normal"), 400},
    {QLatin1String("bold"), 700},
};

const Keyword<double> fontSizes[] = {
    {QLatin1String("xx-small"), 9},  {QLatin1String("x-small"), 10},   {QLatin1String("small"), 13},
    {QLatin1String("medium"), 16},   {QLatin1String("large"), 18},     {QLatin1String("x-large"), 24},
    {QLatin1String("xx-large"), 32}, {QLatin1String("xxx-large"), 48},
};

constexpr double largerFactor = 1.2;
const Keyword<double> relativeFontSizes[] = {
    {QLatin1String("larger"), largerFactor},
    {QLatin1String("smaller"), 1 / largerFactor},
};
constexpr double maximumMiterLimit = 10000;

/// "currentColor" is the element's colour elsewhere; here it is the parent's.
struct CurrentColorCodec
{
    static std::optional<QColor> read(QStringView text, const ComputedStyle &, const PropertyContext &context)
    {
        return ColorCodec::read(text, context.parent, context);
    }
    static QString print(const QColor &color) { return colorText(color); }
};

/// "none", or one of many words with the same meaning for graphics (SVG 1.1 §11.5).
struct DisplayCodec
{
    static std::optional<bool> read(QStringView text, const ComputedStyle &, const PropertyContext &)
    {
        return text.isEmpty() ? std::nullopt : std::optional<bool>(!isWord(text, "none"));
    }
    static QString print(bool displayed) { return displayed ? QStringLiteral("inline") : QStringLiteral("none"); }
};

struct PaintCodec
{
    static std::optional<Paint> read(QStringView text, const ComputedStyle &style, const PropertyContext &)
    {
        std::optional<Paint> paint = parsePaint(text, style.color);
        if (!paint)
            return paint;
        if (paint->kind == Paint::CurrentColor)
            paint->kind = Paint::Color;
        if (paint->followsColor)
            paint->color = style.color;
        return paint;
    }
    static QString print(const Paint &paint)
    {
        switch (paint.kind) {
        case Paint::Color:
        case Paint::CurrentColor:
            return colorText(paint.color);
        case Paint::Server:
            return (referenceText(paint.server) + QLatin1Char(' ') + colorText(paint.color)).trimmed();
        case Paint::ContextFill:
            return QStringLiteral("context-fill");
        case Paint::ContextStroke:
            return QStringLiteral("context-stroke");
        case Paint::Unset:
        case Paint::None:
            break;
        }
        return QStringLiteral("none");
    }
};

template<auto member> std::optional<TypedValue> paintValue(const ComputedStyle &style)
{
    const Paint &paint = valueIn(style, member);
    return paint.kind == Paint::Color && paint.color.isValid() ? std::optional<TypedValue>(paint.color)
                                                               : std::nullopt;
}

template<auto member> bool assignPaint(ComputedStyle &style, const TypedValue &value, const PropertyContext &)
{
    const auto *color = std::get_if<QColor>(&value);
    if (color)
        setIn(style, member, {Paint::Color, *color, QString()});
    return color;
}

template<auto member> constexpr Property paintRow(AttributeId id)
{
    return propertyRow<member>(id, applyMember<member, PaintCodec>, printMember<member, PaintCodec>,
                               {PropertyAnimation::Colors, false, paintValue<member>, assignPaint<member>});
}

struct FontFamilyCodec
{
    static std::optional<QString> read(QStringView text, const ComputedStyle &, const PropertyContext &)
    {
        return text.isEmpty() || hasTooManyFamilies(text) ? std::nullopt : std::optional<QString>(text.toString());
    }
    static QString print(const QString &family) { return family; }
};

/// User units.
struct FontSizeCodec
{
    static std::optional<double> read(QStringView text, const ComputedStyle &style, const PropertyContext &context)
    {
        if (const std::optional<double> size = keywordValue(text, fontSizes))
            return size;
        if (const std::optional<double> factor = keywordValue(text, relativeFontSizes))
            return *factor * context.parent.font.size;
        const std::optional<Length> length = parseLength(text);
        return length ? settle(*length, style, context) : std::nullopt;
    }
    // Percentages of a font size refer to the parent's.
    static std::optional<double> settle(const Length &length, const ComputedStyle &, const PropertyContext &context)
    {
        if (length.value < 0)
            return std::nullopt;
        const double inherited = context.parent.font.size;
        return toUserUnits(length, Axis::Horizontal,
                           {QSizeF(inherited, inherited), inherited, context.parent.font.rootSize});
    }
    static QString print(double size) { return numberText(size); }
    static std::optional<double> number(double size) { return size; }
};

// The font decides on the angle of its oblique letters.
struct FontStyleCodec : KeywordCodec<fontStyles>
{
    static std::optional<bool> read(QStringView text, const ComputedStyle &, const PropertyContext &)
    {
        const bool leans = text.startsWith(QLatin1String("oblique "), Qt::CaseInsensitive) &&
                           parseAngle(text.mid(text.indexOf(QLatin1Char(' '))).trimmed()).has_value();
        return leans ? true : keywordValue(text, fontStyles);
    }
};

/// 1 to 1000.
struct FontWeightCodec
{
    static std::optional<int> read(QStringView text, const ComputedStyle &style, const PropertyContext &context)
    {
        if (const std::optional<int> weight = keywordValue(text, fontWeights))
            return weight;
        const int inherited = context.parent.font.weight;
        if (text == QLatin1String("bolder"))
            return inherited < 350 ? 400 : inherited < 550 ? 700 : 900;
        if (text == QLatin1String("lighter"))
            return inherited < 550 ? 100 : inherited < 750 ? 400 : 700;
        const std::optional<double> weight = parseNumber(text);
        return weight ? settle({*weight}, style, context) : std::nullopt;
    }
    static std::optional<int> settle(const Length &length, const ComputedStyle &, const PropertyContext &)
    {
        const bool isWeight = length.unit == Unit::User && length.value >= 1 && length.value <= 1000;
        return isWeight ? std::optional<int>(int(length.value)) : std::nullopt;
    }
    static QString print(int weight) { return numberText(weight); }
    static std::optional<double> number(int weight) { return weight; }
};

struct PaintOrderCodec
{
    static std::optional<PaintOrder> read(QStringView text, const ComputedStyle &, const PropertyContext &);
    static QString print(const PaintOrder &order);
};

// Omitted parts follow in the default order (SVG 2 §13.8).
std::optional<PaintOrder> PaintOrderCodec::read(QStringView text, const ComputedStyle &, const PropertyContext &)
{
    PaintOrder order = initialStyle()->paintOrder;
    const QStringList words = text.toString().simplified().split(QLatin1Char(' '));
    if (words == QStringList(QStringLiteral("normal")))
        return order;
    QVector<PaintStep> steps;
    for (const QString &word : words) {
        const std::optional<PaintStep> step = keywordValue(word, paintSteps);
        if (!step || steps.contains(*step))
            return std::nullopt;
        steps.append(*step);
    }
    for (const PaintStep step : initialStyle()->paintOrder)
        if (!steps.contains(step))
            steps.append(step);
    std::copy(steps.begin(), steps.end(), order.begin());
    return order;
}

QString PaintOrderCodec::print(const PaintOrder &order)
{
    if (order == initialStyle()->paintOrder)
        return QStringLiteral("normal");
    QStringList words;
    for (const PaintStep step : order)
        words.append(keywordName(step, paintSteps));
    return words.join(QLatin1Char(' '));
}

/// A length relative to the diagonal of the viewport, user units.
struct StrokeLengthCodec
{
    static std::optional<double> read(QStringView text, const ComputedStyle &style, const PropertyContext &context)
    {
        const std::optional<Length> length = parseLength(text);
        return length ? settle(*length, style, context) : std::nullopt;
    }
    static std::optional<double> settle(const Length &length, const ComputedStyle &style,
                                        const PropertyContext &context)
    {
        return toUserUnits(length, Axis::Diagonal, lengthContext(style, context));
    }
    static QString print(double length) { return numberText(length); }
    static std::optional<double> number(double length) { return length; }
};

struct StrokeWidthCodec : StrokeLengthCodec
{
    static std::optional<double> read(QStringView text, const ComputedStyle &style, const PropertyContext &context)
    {
        return inRange(StrokeLengthCodec::read(text, style, context));
    }
    static std::optional<double> settle(const Length &length, const ComputedStyle &style,
                                        const PropertyContext &context)
    {
        return inRange(StrokeLengthCodec::settle(length, style, context));
    }

private:
    static std::optional<double> inRange(const std::optional<double> &width)
    {
        return width && *width >= 0 ? std::optional<double>(qMin(*width, Limits::strokeWidth)) : std::nullopt;
    }
};

struct MiterLimitCodec
{
    static std::optional<double> read(QStringView text, const ComputedStyle &style, const PropertyContext &context)
    {
        const std::optional<double> limit = parseNumber(text);
        return limit ? settle({*limit}, style, context) : std::nullopt;
    }
    static std::optional<double> settle(const Length &length, const ComputedStyle &, const PropertyContext &)
    {
        const bool isLimit = length.unit == Unit::User && length.value >= 1;
        return isLimit ? std::optional<double>(qMin(length.value, maximumMiterLimit)) : std::nullopt;
    }
    static QString print(double limit) { return numberText(limit); }
    static std::optional<double> number(double limit) { return limit; }
};

bool setDashes(ComputedStyle &style, const QVector<Length> &lengths, const PropertyContext &context)
{
    QVector<double> dashes;
    for (const Length &length : lengths) {
        if (length.value < 0)
            return false;
        dashes.append(toUserUnits(length, Axis::Diagonal, lengthContext(style, context)));
    }
    if (dashes.size() % 2 != 0)
        dashes += QVector<double>(dashes);
    // A pattern of zero length means a solid line.
    if (std::accumulate(dashes.constBegin(), dashes.constEnd(), 0.0) <= 0)
        dashes.clear();
    style.strokeDasharray = dashes;
    return true;
}

std::optional<QVector<Length>> readDashes(QStringView text)
{
    QVector<Length> dashes;
    const Latin1Text bytes(text);
    Cursor cursor = bytes.cursor();
    cursor.skipSpace();
    while (!cursor.atEnd()) {
        Length length;
        if (dashes.size() == Limits::dashEntries || !readLength(cursor, &length))
            return std::nullopt;
        dashes.append(length);
        cursor.skipCommaSpace();
    }
    return dashes;
}

bool applyDashes(ComputedStyle &style, QStringView text, const PropertyContext &context)
{
    if (text == QLatin1String("none"))
        return setDashes(style, {}, context);
    const std::optional<QVector<Length>> dashes = readDashes(text);
    return dashes && setDashes(style, *dashes, context);
}

QString printDashes(const ComputedStyle &style)
{
    QStringList numbers;
    for (const double dash : style.strokeDasharray)
        numbers.append(numberText(dash));
    return numbers.isEmpty() ? QStringLiteral("none") : numbers.join(QLatin1Char(' '));
}

std::optional<TypedValue> dashesValue(const ComputedStyle &style)
{
    QVector<Length> lengths;
    for (const double dash : style.strokeDasharray)
        lengths.append(Length{dash});
    return lengths.isEmpty() ? std::nullopt : std::optional<TypedValue>(lengths);
}

bool assignDashes(ComputedStyle &style, const TypedValue &value, const PropertyContext &context)
{
    const auto *lengths = std::get_if<QVector<Length>>(&value);
    return lengths && lengths->size() <= Limits::dashEntries && setDashes(style, *lengths, context);
}

constexpr PropertyAnimation dashAnimation{PropertyAnimation::RepeatedLengths, true, dashesValue, assignDashes};

constexpr Property rows[] = {
    colorRow<&ComputedStyle::color, CurrentColorCodec>(AttributeId::Color),
    valueRow<&ComputedStyle::displayed, DisplayCodec>(AttributeId::Display),
    paintRow<&ComputedStyle::fill>(AttributeId::Fill),
    numberRow<&ComputedStyle::fillOpacity, OpacityCodec>(AttributeId::FillOpacity),
    keywordRow<&ComputedStyle::fillRule, fillRules>(AttributeId::FillRule),
    valueRow<&FontStyle::family, FontFamilyCodec>(AttributeId::FontFamily),
    numberRow<&FontStyle::size, FontSizeCodec>(AttributeId::FontSize, Sign::Positive),
    valueRow<&FontStyle::italic, FontStyleCodec>(AttributeId::FontStyle),
    numberRow<&FontStyle::weight, FontWeightCodec>(AttributeId::FontWeight),
    numberRow<&ComputedStyle::opacity, OpacityCodec>(AttributeId::Opacity),
    valueRow<&ComputedStyle::paintOrder, PaintOrderCodec>(AttributeId::PaintOrder),
    colorRow<&ComputedStyle::stopColor, ColorCodec>(AttributeId::StopColor),
    numberRow<&ComputedStyle::stopOpacity, OpacityCodec>(AttributeId::StopOpacity),
    paintRow<&ComputedStyle::stroke>(AttributeId::Stroke),
    propertyRow<&ComputedStyle::strokeDasharray>(AttributeId::StrokeDasharray, applyDashes, printDashes,
                                                 dashAnimation),
    numberRow<&ComputedStyle::strokeDashoffset, StrokeLengthCodec>(AttributeId::StrokeDashoffset),
    keywordRow<&ComputedStyle::strokeLinecap, caps>(AttributeId::StrokeLinecap),
    keywordRow<&ComputedStyle::strokeLinejoin, joins>(AttributeId::StrokeLinejoin),
    numberRow<&ComputedStyle::strokeMiterlimit, MiterLimitCodec>(AttributeId::StrokeMiterlimit),
    numberRow<&ComputedStyle::strokeOpacity, OpacityCodec>(AttributeId::StrokeOpacity),
    numberRow<&ComputedStyle::strokeWidth, StrokeWidthCodec>(AttributeId::StrokeWidth, Sign::Positive),
    keywordRow<&ComputedStyle::textAnchor, anchors>(AttributeId::TextAnchor),
    keywordRow<&ComputedStyle::strokeScales, vectorEffects>(AttributeId::VectorEffect),
    keywordRow<&ComputedStyle::visible, visibilities>(AttributeId::Visibility),
};
static_assert(isComplete(rows, AttributeId::Color, AttributeId::Visibility));

} // namespace

const Property *paintProperties()
{
    return rows;
}

bool hasTooManyDashes(QStringView list)
{
    const Latin1Text bytes(list);
    Cursor cursor = bytes.cursor();
    cursor.skipSpace();
    Length length;
    for (int count = 0; !cursor.atEnd() && readLength(cursor, &length); cursor.skipCommaSpace())
        if (++count > Limits::dashEntries)
            return true;
    return false;
}

} // namespace Svg
