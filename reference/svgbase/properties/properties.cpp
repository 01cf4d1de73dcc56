#include "properties/properties.h"

#include "grammar/angles.h"
#include "grammar/colors.h"
#include "grammar/fontfamilies.h"
#include "grammar/numbers.h"
#include "inputlimits.h"
#include "properties/effectproperties.h"
#include "properties/keywords.h"
#include "properties/textproperties.h"

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
    // Cut at the limit; between straight lines, arcs are the same (SVG 2 §13.5.5).
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

bool applyColor(QColor &target, QStringView text, const QColor &currentColor)
{
    if (text.compare(QLatin1String("currentColor"), Qt::CaseInsensitive) == 0) {
        target = currentColor;
        return true;
    }
    const std::optional<QColor> color = parseColor(text, {currentColor});
    if (color)
        target = *color;
    return color.has_value();
}

bool applyPaint(Paint &target, QStringView text, const QColor &currentColor)
{
    std::optional<Paint> paint = parsePaint(text, currentColor);
    if (!paint)
        return false;
    if (paint->kind == Paint::CurrentColor)
        paint->kind = Paint::Color;
    if (paint->followsColor)
        paint->color = currentColor;
    target = *paint;
    return true;
}

// What is not named follows in the usual order (SVG 2 §13.8).
bool applyPaintOrder(PaintOrder &target, QStringView text)
{
    const PaintOrder usual = ComputedStyle().paintOrder;
    QStringList words = text.toString().simplified().split(QLatin1Char(' '));
    if (words == QStringList(QStringLiteral("normal"))) {
        target = usual;
        return true;
    }
    QVector<PaintStep> steps;
    for (const QString &word : qAsConst(words)) {
        PaintStep step = PaintStep::Fill;
        if (!applyKeyword(step, word, paintSteps) || steps.contains(step))
            return false;
        steps.append(step);
    }
    for (const PaintStep step : usual) {
        if (!steps.contains(step))
            steps.append(step);
    }
    std::copy(steps.begin(), steps.end(), target.begin());
    return true;
}

bool applyOpacity(double &target, QStringView text)
{
    const std::optional<double> opacity = parseOpacity(text);
    if (opacity)
        target = *opacity;
    return opacity.has_value();
}

LengthContext lengthContext(const ComputedStyle &style, const PropertyContext &context)
{
    return {context.viewport, style.font.size, style.font.rootSize};
}

bool applyLength(double &target, QStringView text, const LengthContext &context)
{
    const std::optional<Length> length = parseLength(text);
    if (length)
        target = toUserUnits(*length, Axis::Diagonal, context);
    return length.has_value();
}

bool applyStrokeWidth(ComputedStyle &style, QStringView text, const PropertyContext &context)
{
    double width = 0;
    if (!applyLength(width, text, lengthContext(style, context)) || width < 0)
        return false;
    style.strokeWidth = qMin(width, Limits::strokeWidth);
    return true;
}

bool applyMiterLimit(ComputedStyle &style, QStringView text)
{
    const std::optional<double> limit = parseNumber(text);
    if (!limit || *limit < 1)
        return false;
    style.strokeMiterlimit = qMin(*limit, maximumMiterLimit);
    return true;
}

bool readDashes(QStringView text, const LengthContext &context, QVector<double> *dashes)
{
    const Latin1Text bytes(text);
    Cursor cursor = bytes.cursor();
    cursor.skipSpace();
    while (!cursor.atEnd()) {
        Length length;
        if (dashes->size() == Limits::dashEntries || !readLength(cursor, &length) || length.value < 0)
            return false;
        dashes->append(toUserUnits(length, Axis::Diagonal, context));
        cursor.skipCommaSpace();
    }
    return true;
}

bool applyDasharray(ComputedStyle &style, QStringView text, const PropertyContext &context)
{
    QVector<double> dashes;
    if (text != QLatin1String("none") && !readDashes(text, lengthContext(style, context), &dashes))
        return false;
    if (dashes.size() % 2 != 0)
        dashes += QVector<double>(dashes);
    // A pattern without any length means a solid line.
    if (std::accumulate(dashes.constBegin(), dashes.constEnd(), 0.0) <= 0)
        dashes.clear();
    style.strokeDasharray = dashes;
    return true;
}

bool applyFontSize(ComputedStyle &style, QStringView text, const PropertyContext &context)
{
    const double inherited = context.parent.font.size;
    if (applyKeyword(style.font.size, text, fontSizes))
        return true;
    if (applyKeyword(style.font.size, text, relativeFontSizes)) {
        style.font.size *= inherited;
        return true;
    }
    const std::optional<Length> length = parseLength(text);
    if (!length || length->value < 0)
        return false;
    // Percentages of a font size are of the parent's.
    const QSizeF base(inherited, inherited);
    style.font.size = toUserUnits(*length, Axis::Horizontal, {base, inherited, context.parent.font.rootSize});
    return true;
}

// How far letters lean is up to the font.
bool applyFontStyle(ComputedStyle &style, QStringView text)
{
    if (applyKeyword(style.font.italic, text, fontStyles))
        return true;
    const bool leans = text.startsWith(QLatin1String("oblique "), Qt::CaseInsensitive) &&
                       parseAngle(text.mid(text.indexOf(QLatin1Char(' '))).trimmed()).has_value();
    style.font.italic = style.font.italic || leans;
    return leans;
}

bool applyFontWeight(ComputedStyle &style, QStringView text, const PropertyContext &context)
{
    if (applyKeyword(style.font.weight, text, fontWeights))
        return true;
    const int inherited = context.parent.font.weight;
    if (text == QLatin1String("bolder")) {
        style.font.weight = inherited < 350 ? 400 : inherited < 550 ? 700 : 900;
        return true;
    }
    if (text == QLatin1String("lighter")) {
        style.font.weight = inherited < 550 ? 100 : inherited < 750 ? 400 : 700;
        return true;
    }
    const std::optional<double> weight = parseNumber(text);
    if (!weight || *weight < 1 || *weight > 1000)
        return false;
    style.font.weight = int(*weight);
    return true;
}

void inheritProperty(ComputedStyle &style, AttributeId property, const ComputedStyle &parent)
{
    switch (property) {
    case AttributeId::Color:
        style.color = parent.color;
        return;
    case AttributeId::Display:
        style.displayed = parent.displayed;
        return;
    case AttributeId::Fill:
        style.fill = parent.fill;
        return;
    case AttributeId::FillOpacity:
        style.fillOpacity = parent.fillOpacity;
        return;
    case AttributeId::FillRule:
        style.fillRule = parent.fillRule;
        return;
    case AttributeId::FontFamily:
        style.font.family = parent.font.family;
        return;
    case AttributeId::FontSize:
        style.font.size = parent.font.size;
        return;
    case AttributeId::FontStyle:
        style.font.italic = parent.font.italic;
        return;
    case AttributeId::FontWeight:
        style.font.weight = parent.font.weight;
        return;
    case AttributeId::Opacity:
        style.opacity = parent.opacity;
        return;
    case AttributeId::PaintOrder:
        style.paintOrder = parent.paintOrder;
        return;
    case AttributeId::StopColor:
        style.stopColor = parent.stopColor;
        return;
    case AttributeId::StopOpacity:
        style.stopOpacity = parent.stopOpacity;
        return;
    case AttributeId::Stroke:
        style.stroke = parent.stroke;
        return;
    case AttributeId::StrokeDasharray:
        style.strokeDasharray = parent.strokeDasharray;
        return;
    case AttributeId::StrokeDashoffset:
        style.strokeDashoffset = parent.strokeDashoffset;
        return;
    case AttributeId::StrokeLinecap:
        style.strokeLinecap = parent.strokeLinecap;
        return;
    case AttributeId::StrokeLinejoin:
        style.strokeLinejoin = parent.strokeLinejoin;
        return;
    case AttributeId::StrokeMiterlimit:
        style.strokeMiterlimit = parent.strokeMiterlimit;
        return;
    case AttributeId::StrokeOpacity:
        style.strokeOpacity = parent.strokeOpacity;
        return;
    case AttributeId::StrokeWidth:
        style.strokeWidth = parent.strokeWidth;
        return;
    case AttributeId::TextAnchor:
        style.textAnchor = parent.textAnchor;
        return;
    case AttributeId::VectorEffect:
        style.strokeScales = parent.strokeScales;
        return;
    case AttributeId::Visibility:
        style.visible = parent.visible;
        return;
    default:
        if (isTextProperty(property))
            inheritTextProperty(style, property, parent);
        else
            inheritEffectProperty(style, property, parent);
        return;
    }
}

bool applyTrimmed(ComputedStyle &style, AttributeId property, QStringView value, const PropertyContext &context)
{
    switch (property) {
    case AttributeId::Color:
        return applyColor(style.color, value, context.parent.color);
    case AttributeId::Display:
        style.displayed = value.compare(QLatin1String("none"), Qt::CaseInsensitive) != 0;
        return !value.isEmpty();
    case AttributeId::Fill:
        return applyPaint(style.fill, value, style.color);
    case AttributeId::FillOpacity:
        return applyOpacity(style.fillOpacity, value);
    case AttributeId::FillRule:
        return applyKeyword(style.fillRule, value, fillRules);
    case AttributeId::FontFamily:
        if (value.isEmpty() || hasTooManyFamilies(value))
            return false;
        style.font.family = value.toString();
        return true;
    case AttributeId::FontSize:
        return applyFontSize(style, value, context);
    case AttributeId::FontStyle:
        return applyFontStyle(style, value);
    case AttributeId::FontWeight:
        return applyFontWeight(style, value, context);
    case AttributeId::Opacity:
        return applyOpacity(style.opacity, value);
    case AttributeId::PaintOrder:
        return applyPaintOrder(style.paintOrder, value);
    case AttributeId::StopColor:
        return applyColor(style.stopColor, value, style.color);
    case AttributeId::StopOpacity:
        return applyOpacity(style.stopOpacity, value);
    case AttributeId::Stroke:
        return applyPaint(style.stroke, value, style.color);
    case AttributeId::StrokeDasharray:
        return applyDasharray(style, value, context);
    case AttributeId::StrokeDashoffset:
        return applyLength(style.strokeDashoffset, value, lengthContext(style, context));
    case AttributeId::StrokeLinecap:
        return applyKeyword(style.strokeLinecap, value, caps);
    case AttributeId::StrokeLinejoin:
        return applyKeyword(style.strokeLinejoin, value, joins);
    case AttributeId::StrokeMiterlimit:
        return applyMiterLimit(style, value);
    case AttributeId::StrokeOpacity:
        return applyOpacity(style.strokeOpacity, value);
    case AttributeId::StrokeWidth:
        return applyStrokeWidth(style, value, context);
    case AttributeId::TextAnchor:
        return applyKeyword(style.textAnchor, value, anchors);
    case AttributeId::VectorEffect:
        return applyKeyword(style.strokeScales, value, vectorEffects);
    case AttributeId::Visibility:
        return applyKeyword(style.visible, value, visibilities);
    default:
        return isTextProperty(property) ? applyTextProperty(style, property, value, context)
                                        : applyEffectProperty(style, property, value, context);
    }
}

} // namespace

bool hasTooManyDashes(QStringView list)
{
    const Latin1Text bytes(list);
    Cursor cursor = bytes.cursor();
    cursor.skipSpace();
    Length length;
    for (int count = 0; !cursor.atEnd() && readLength(cursor, &length); cursor.skipCommaSpace()) {
        if (++count > Limits::dashEntries)
            return true;
    }
    return false;
}

bool applyProperty(ComputedStyle &style, AttributeId property, QStringView value, const PropertyContext &context)
{
    const QStringView trimmed = value.trimmed();
    static const ComputedStyle initial;
    const auto is = [trimmed](const char *word) {
        return trimmed.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
    };
    if (is("inherit"))
        inheritProperty(style, property, context.parent);
    else if (is("initial"))
        inheritProperty(style, property, initial);
    else if (is("unset") || is("revert"))
        inheritProperty(style, property, inheritedStyle(context.parent));
    else
        return applyTrimmed(style, property, trimmed, context);
    return true;
}

} // namespace Svg
