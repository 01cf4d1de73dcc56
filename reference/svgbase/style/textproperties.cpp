#include "style/textproperties.h"

#include "grammar/numbers.h"
#include "inputlimits.h"
#include "style/keywords.h"

namespace Svg {

namespace {

/// Larger ones make no letters that could be read.
constexpr double largestSizeAdjust = 100;

const Keyword<Baseline> baselines[] = {
    {QLatin1String("auto"), Baseline::Auto},
    {QLatin1String("use-script"), Baseline::Auto},
    {QLatin1String("baseline"), Baseline::Auto},
    {QLatin1String("alphabetic"), Baseline::Alphabetic},
    {QLatin1String("central"), Baseline::Central},
    {QLatin1String("center"), Baseline::Central},
    {QLatin1String("hanging"), Baseline::Hanging},
    {QLatin1String("mathematical"), Baseline::Mathematical},
    {QLatin1String("middle"), Baseline::Middle},
    {QLatin1String("ideographic"), Baseline::TextAfterEdge},
    {QLatin1String("text-after-edge"), Baseline::TextAfterEdge},
    {QLatin1String("after-edge"), Baseline::TextAfterEdge},
    {QLatin1String("text-bottom"), Baseline::TextAfterEdge},
    {QLatin1String("bottom"), Baseline::TextAfterEdge},
    {QLatin1String("text-before-edge"), Baseline::TextBeforeEdge},
    {QLatin1String("before-edge"), Baseline::TextBeforeEdge},
    {QLatin1String("text-top"), Baseline::TextBeforeEdge},
    {QLatin1String("top"), Baseline::TextBeforeEdge},
};

const Keyword<bool> directions[] = {
    {QLatin1String("ltr"), false},
    {QLatin1String("rtl"), true},
};

const Keyword<UnicodeBidi> bidiModes[] = {
    {QLatin1String("normal"), UnicodeBidi::Normal},
    {QLatin1String("embed"), UnicodeBidi::Embed},
    {QLatin1String("isolate"), UnicodeBidi::Embed},
    {QLatin1String("plaintext"), UnicodeBidi::Normal},
    {QLatin1String("bidi-override"), UnicodeBidi::Override},
    {QLatin1String("isolate-override"), UnicodeBidi::Override},
};

const Keyword<bool> writingModes[] = {
    {QLatin1String("lr"), false},    {QLatin1String("lr-tb"), false},         {QLatin1String("rl"), false},
    {QLatin1String("rl-tb"), false}, {QLatin1String("horizontal-tb"), false}, {QLatin1String("tb"), true},
    {QLatin1String("tb-rl"), true},  {QLatin1String("vertical-rl"), true},    {QLatin1String("vertical-lr"), true},
};

const Keyword<WhiteSpace> whiteSpaces[] = {
    {QLatin1String("normal"), WhiteSpace::Collapse},   {QLatin1String("nowrap"), WhiteSpace::Collapse},
    {QLatin1String("pre-line"), WhiteSpace::Collapse}, {QLatin1String("pre"), WhiteSpace::Preserve},
    {QLatin1String("pre-wrap"), WhiteSpace::Preserve}, {QLatin1String("break-spaces"), WhiteSpace::Preserve},
};

const Keyword<bool> variants[] = {
    {QLatin1String("normal"), false},
    {QLatin1String("small-caps"), true},
    {QLatin1String("all-small-caps"), true},
};

const Keyword<TextOrientation> orientations[] = {
    {QLatin1String("mixed"), TextOrientation::Mixed},
    {QLatin1String("upright"), TextOrientation::Upright},
    {QLatin1String("sideways"), TextOrientation::Sideways},
    {QLatin1String("sideways-right"), TextOrientation::Sideways},
};

// The old property is a shorthand of the one above (CSS Writing Modes 3 §5.1.1).
const Keyword<TextOrientation> glyphOrientations[] = {
    {QLatin1String("auto"), TextOrientation::Mixed},     {QLatin1String("0"), TextOrientation::Upright},
    {QLatin1String("0deg"), TextOrientation::Upright},   {QLatin1String("90"), TextOrientation::Sideways},
    {QLatin1String("90deg"), TextOrientation::Sideways},
};

const Keyword<bool> kernings[] = {
    {QLatin1String("auto"), true},
    {QLatin1String("normal"), true},
    {QLatin1String("none"), false},
};

const Keyword<int> stretches[] = {
    {QLatin1String("ultra-condensed"), 50}, {QLatin1String("extra-condensed"), 62},
    {QLatin1String("condensed"), 75},       {QLatin1String("semi-condensed"), 87},
    {QLatin1String("normal"), 100},         {QLatin1String("semi-expanded"), 112},
    {QLatin1String("expanded"), 125},       {QLatin1String("extra-expanded"), 150},
    {QLatin1String("ultra-expanded"), 200},
};

// Percentages of the keywords (CSS Fonts 4 §2.5): what lies between them is drawn as the nearest.
bool applyStretchPercentage(int &stretch, QStringView text)
{
    const std::optional<Length> length = parseLength(text);
    if (!length || length->unit != Unit::Percent || length->value < 0)
        return false;
    stretch = qRound(qBound(50.0, length->value, 200.0));
    return true;
}

/// Neighbours in the list above: "narrower" and "wider" go one step from the parent's.
bool applyStretch(int &stretch, QStringView text, int inherited)
{
    const bool narrower = text == QLatin1String("narrower");
    if (!narrower && text != QLatin1String("wider"))
        return applyKeyword(stretch, text, stretches) || applyStretchPercentage(stretch, text);
    const int count = int(sizeof stretches / sizeof stretches[0]);
    for (int i = 0; i < count; ++i) {
        if (stretches[i].value == inherited)
            stretch = stretches[qBound(0, narrower ? i - 1 : i + 1, count - 1)].value;
    }
    return true;
}

// Percentages are shares of the font size (CSS Text 4 §9).
bool applySpacing(double &spacing, QStringView text, double fontSize)
{
    if (text == QLatin1String("normal")) {
        spacing = 0;
        return true;
    }
    const std::optional<Length> length = parseLength(text);
    if (length)
        spacing = toUserUnits(*length, Axis::Horizontal, {QSizeF(fontSize, fontSize), fontSize});
    return length.has_value();
}

// A length stands in the place of the font's own kerning (SVG 1.1 §10.11).
bool applyKerning(TextStyle &text, QStringView value, double fontSize)
{
    const bool automatic = value.compare(QLatin1String("auto"), Qt::CaseInsensitive) == 0;
    if (automatic)
        text.kerningSpacing = 0;
    else if (!applySpacing(text.kerningSpacing, value, fontSize))
        return false;
    text.kerning = automatic;
    return true;
}

bool applySizeAdjust(double &adjust, QStringView value)
{
    const std::optional<double> number = parseNumber(value);
    const bool none = value.compare(QLatin1String("none"), Qt::CaseInsensitive) == 0;
    if (!none && (!number || *number < 0))
        return false;
    adjust = none ? 0 : qMin(*number, largestSizeAdjust);
    return true;
}

bool applyLineHeight(TextStyle &text, QStringView value, double fontSize)
{
    const std::optional<double> share = parseNumber(value);
    double height = 0;
    if (!share && !applySpacing(height, value, fontSize))
        return false;
    if (share.value_or(0) < 0 || height < 0)
        return false;
    text.lineHeightShare = share.value_or(0);
    text.lineHeight = height;
    return true;
}

// Percentages are of the width of the viewport (SVG 2 §11.7.1).
bool applyInlineSize(double &size, QStringView value, const ComputedStyle &style, const QSizeF &viewport)
{
    const std::optional<Length> length = parseLength(value);
    const bool automatic = value.compare(QLatin1String("auto"), Qt::CaseInsensitive) == 0;
    if (!automatic && (!length || length->value < 0))
        return false;
    size = automatic ? 0 : toUserUnits(*length, Axis::Horizontal, {viewport, style.font.size, style.font.rootSize});
    return true;
}

bool applyBaselineShift(InlineStyle &inlineStyle, QStringView text, double fontSize)
{
    inlineStyle.shift = InlineStyle::Length;
    if (text == QLatin1String("sub") || text == QLatin1String("super")) {
        inlineStyle.shift = text == QLatin1String("sub") ? InlineStyle::Sub : InlineStyle::Super;
        return true;
    }
    if (text == QLatin1String("baseline")) {
        inlineStyle.baselineShift = 0;
        return true;
    }
    return applySpacing(inlineStyle.baselineShift, text, fontSize);
}

// Lines that blink have none that could be drawn; colours and styles of lines are not looked at.
bool applyDecoration(InlineStyle &inlineStyle, QStringView text)
{
    inlineStyle.underline = inlineStyle.overline = inlineStyle.lineThrough = false;
    const auto words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QStringView word : words) {
        inlineStyle.underline = inlineStyle.underline || word == QLatin1String("underline");
        inlineStyle.overline = inlineStyle.overline || word == QLatin1String("overline");
        inlineStyle.lineThrough = inlineStyle.lineThrough || word == QLatin1String("line-through");
    }
    return !words.isEmpty();
}

// Two old keywords leave the baseline as it is around the part (SVG 1.1 §10.9.2).
bool applyDominantBaseline(Baseline &baseline, QStringView value, Baseline inherited)
{
    const auto is = [value](const char *word) {
        return value.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
    };
    if (!is("no-change") && !is("reset-size"))
        return applyKeyword(baseline, value, baselines);
    baseline = inherited;
    return true;
}

bool applyToText(TextStyle &text, AttributeId property, QStringView value, double fontSize,
                 const TextStyle &inherited)
{
    switch (property) {
    case AttributeId::Direction:
        return applyKeyword(text.rightToLeft, value, directions);
    case AttributeId::DominantBaseline:
        return applyDominantBaseline(text.dominantBaseline, value, inherited.dominantBaseline);
    case AttributeId::FontKerning:
        return applyKeyword(text.kerning, value, kernings);
    case AttributeId::FontSizeAdjust:
        return applySizeAdjust(text.sizeAdjust, value);
    case AttributeId::FontStretch:
        return applyStretch(text.stretch, value, inherited.stretch);
    case AttributeId::FontVariant:
        return applyKeyword(text.smallCaps, value, variants);
    case AttributeId::GlyphOrientationVertical:
        return applyKeyword(text.orientation, value, glyphOrientations);
    case AttributeId::Kerning:
        return applyKerning(text, value, fontSize);
    case AttributeId::LineHeight:
        return applyLineHeight(text, value, fontSize);
    case AttributeId::TextOrientation:
        return applyKeyword(text.orientation, value, orientations);
    case AttributeId::LetterSpacing:
        return applySpacing(text.letterSpacing, value, fontSize);
    case AttributeId::WhiteSpace:
        return applyKeyword(text.whiteSpace, value, whiteSpaces);
    case AttributeId::WordSpacing:
        return applySpacing(text.wordSpacing, value, fontSize);
    case AttributeId::WritingMode:
        return applyKeyword(text.vertical, value, writingModes);
    default:
        return false;
    }
}

bool applyToInline(InlineStyle &inlineStyle, AttributeId property, QStringView value, double fontSize)
{
    switch (property) {
    case AttributeId::AlignmentBaseline:
        return applyKeyword(inlineStyle.alignmentBaseline, value, baselines);
    case AttributeId::BaselineShift:
        return applyBaselineShift(inlineStyle, value, fontSize);
    case AttributeId::TextDecoration:
        return applyDecoration(inlineStyle, value);
    case AttributeId::UnicodeBidi:
        return applyKeyword(inlineStyle.unicodeBidi, value, bidiModes);
    default:
        return false;
    }
}

bool isInline(AttributeId property)
{
    return property == AttributeId::AlignmentBaseline || property == AttributeId::BaselineShift ||
           property == AttributeId::InlineSize || property == AttributeId::TextDecoration ||
           property == AttributeId::UnicodeBidi;
}

void copyText(TextStyle &text, AttributeId property, const TextStyle &from)
{
    switch (property) {
    case AttributeId::Direction:
        text.rightToLeft = from.rightToLeft;
        break;
    case AttributeId::DominantBaseline:
        text.dominantBaseline = from.dominantBaseline;
        break;
    case AttributeId::FontKerning:
        text.kerning = from.kerning;
        break;
    case AttributeId::FontSizeAdjust:
        text.sizeAdjust = from.sizeAdjust;
        break;
    case AttributeId::FontStretch:
        text.stretch = from.stretch;
        break;
    case AttributeId::FontVariant:
        text.smallCaps = from.smallCaps;
        break;
    case AttributeId::GlyphOrientationVertical:
    case AttributeId::TextOrientation:
        text.orientation = from.orientation;
        break;
    case AttributeId::Kerning:
        text.kerning = from.kerning;
        text.kerningSpacing = from.kerningSpacing;
        break;
    case AttributeId::LineHeight:
        text.lineHeightShare = from.lineHeightShare;
        text.lineHeight = from.lineHeight;
        break;
    case AttributeId::LetterSpacing:
        text.letterSpacing = from.letterSpacing;
        break;
    case AttributeId::WhiteSpace:
        text.whiteSpace = from.whiteSpace;
        break;
    case AttributeId::WordSpacing:
        text.wordSpacing = from.wordSpacing;
        break;
    case AttributeId::WritingMode:
        text.vertical = from.vertical;
        break;
    default:
        break;
    }
}

void copyInline(InlineStyle &inlineStyle, AttributeId property, const InlineStyle &from)
{
    switch (property) {
    case AttributeId::AlignmentBaseline:
        inlineStyle.alignmentBaseline = from.alignmentBaseline;
        break;
    case AttributeId::BaselineShift:
        inlineStyle.baselineShift = from.baselineShift;
        inlineStyle.shift = from.shift;
        break;
    case AttributeId::InlineSize:
        inlineStyle.inlineSize = from.inlineSize;
        break;
    case AttributeId::TextDecoration:
        inlineStyle.underline = from.underline;
        inlineStyle.overline = from.overline;
        inlineStyle.lineThrough = from.lineThrough;
        break;
    case AttributeId::UnicodeBidi:
        inlineStyle.unicodeBidi = from.unicodeBidi;
        break;
    default:
        break;
    }
}

} // namespace

bool asksForLines(const ComputedStyle &style)
{
    const InlineStyle &own = inlineStyleOf(style);
    return own.underline || own.overline || own.lineThrough;
}

bool decorateTextBelow(ComputedStyle &group)
{
    QSharedDataPointer<TextStyle> changed(new TextStyle(textStyleOf(group)));
    if (changed->decorations.size() >= Limits::decoratingGroups)
        return false;
    changed->decorations.append(std::make_shared<const ComputedStyle>(group));
    group.text = changed;
    return true;
}

const TextStyle &textStyleOf(const ComputedStyle &style)
{
    static const QSharedDataPointer<TextStyle> initial(new TextStyle);
    return style.text ? *style.text : *initial;
}

const InlineStyle &inlineStyleOf(const ComputedStyle &style)
{
    static const QSharedDataPointer<InlineStyle> initial(new InlineStyle);
    return style.inlineText ? *style.inlineText : *initial;
}

bool applyTextProperty(ComputedStyle &style, AttributeId property, QStringView value,
                       const PropertyContext &context)
{
    const double fontSize = style.font.size;
    if (isInline(property)) {
        QSharedDataPointer<InlineStyle> changed(new InlineStyle(inlineStyleOf(style)));
        const bool accepted = property == AttributeId::InlineSize
                                  ? applyInlineSize(changed->inlineSize, value, style, context.viewport)
                                  : applyToInline(*changed, property, value, fontSize);
        if (!accepted)
            return false;
        style.inlineText = changed;
        return true;
    }
    QSharedDataPointer<TextStyle> changed(new TextStyle(textStyleOf(style)));
    if (!applyToText(*changed, property, value, fontSize, textStyleOf(context.parent)))
        return false;
    style.text = changed;
    return true;
}

void inheritTextProperty(ComputedStyle &style, AttributeId property, const ComputedStyle &parent)
{
    if (isInline(property)) {
        QSharedDataPointer<InlineStyle> changed(new InlineStyle(inlineStyleOf(style)));
        copyInline(*changed, property, inlineStyleOf(parent));
        style.inlineText = changed;
        return;
    }
    QSharedDataPointer<TextStyle> changed(new TextStyle(textStyleOf(style)));
    copyText(*changed, property, textStyleOf(parent));
    style.text = changed;
}

} // namespace Svg
