#include "properties/textproperties.h"

#include "grammar/colors.h"
#include "grammar/csstext.h"
#include "grammar/numbers.h"
#include "inputlimits.h"
#include "properties/keywords.h"

#include <algorithm>

namespace Svg {

namespace {

/// Larger ones make no letters that could be read.
constexpr double largestSizeAdjust = 100;

const Keyword<Baseline> baselines[] = {
    {QLatin1String("auto"), Baseline::Auto},
    {QLatin1String("use-script"), Baseline::Auto},
    {QLatin1String("alphabetic"), Baseline::Alphabetic},
    {QLatin1String("central"), Baseline::Central},
    {QLatin1String("hanging"), Baseline::Hanging},
    {QLatin1String("mathematical"), Baseline::Mathematical},
    {QLatin1String("middle"), Baseline::Middle},
    {QLatin1String("ideographic"), Baseline::TextAfterEdge},
    {QLatin1String("text-after-edge"), Baseline::TextAfterEdge},
    {QLatin1String("text-bottom"), Baseline::TextAfterEdge},
    {QLatin1String("text-before-edge"), Baseline::TextBeforeEdge},
    {QLatin1String("text-top"), Baseline::TextBeforeEdge},
};

// These are for the alignment of parts only (SVG 1.1 §10.9.2).
const Keyword<Baseline> alignments[] = {
    {QLatin1String("baseline"), Baseline::Auto},
    {QLatin1String("after-edge"), Baseline::TextAfterEdge},
    {QLatin1String("before-edge"), Baseline::TextBeforeEdge},
};

const Keyword<bool> directions[] = {
    {QLatin1String("ltr"), false},
    {QLatin1String("rtl"), true},
};

const Keyword<UnicodeBidi> bidiModes[] = {
    {QLatin1String("normal"), UnicodeBidi::Normal},
    {QLatin1String("embed"), UnicodeBidi::Embed},
    {QLatin1String("isolate"), UnicodeBidi::Isolate},
    {QLatin1String("plaintext"), UnicodeBidi::Plaintext},
    {QLatin1String("bidi-override"), UnicodeBidi::Override},
    {QLatin1String("isolate-override"), UnicodeBidi::IsolateOverride},
};

const Keyword<WritingMode> writingModes[] = {
    {QLatin1String("lr"), WritingMode::Horizontal},
    {QLatin1String("lr-tb"), WritingMode::Horizontal},
    {QLatin1String("rl"), WritingMode::Horizontal},
    {QLatin1String("rl-tb"), WritingMode::Horizontal},
    {QLatin1String("horizontal-tb"), WritingMode::Horizontal},
    {QLatin1String("tb"), WritingMode::Vertical},
    {QLatin1String("tb-lr"), WritingMode::Vertical},
    {QLatin1String("tb-rl"), WritingMode::Vertical},
    {QLatin1String("vertical-rl"), WritingMode::Vertical},
    {QLatin1String("vertical-lr"), WritingMode::Vertical},
    {QLatin1String("sideways-rl"), WritingMode::SidewaysRight},
    {QLatin1String("sideways-lr"), WritingMode::SidewaysLeft},
};

const Keyword<TextTransform> textTransforms[] = {
    {QLatin1String("none"), TextTransform::None},
    {QLatin1String("uppercase"), TextTransform::Uppercase},
    {QLatin1String("lowercase"), TextTransform::Lowercase},
    {QLatin1String("capitalize"), TextTransform::Capitalize},
    {QLatin1String("full-width"), TextTransform::None},
    {QLatin1String("full-size-kana"), TextTransform::None},
};

const Keyword<LineStyle> lineStyles[] = {
    {QLatin1String("solid"), LineStyle::Solid},   {QLatin1String("double"), LineStyle::Double},
    {QLatin1String("dotted"), LineStyle::Dotted}, {QLatin1String("dashed"), LineStyle::Dashed},
    {QLatin1String("wavy"), LineStyle::Wavy},
};

// Single ones that add to the usual ligatures change nothing that is drawn here.
const Keyword<bool> ligatures[] = {
    {QLatin1String("normal"), true},
    {QLatin1String("none"), false},
    {QLatin1String("no-common-ligatures"), false},
    {QLatin1String("common-ligatures"), true},
    {QLatin1String("discretionary-ligatures"), true},
    {QLatin1String("no-discretionary-ligatures"), true},
    {QLatin1String("historical-ligatures"), true},
    {QLatin1String("no-historical-ligatures"), true},
    {QLatin1String("contextual"), true},
    {QLatin1String("no-contextual"), true},
};

const Keyword<WhiteSpace> whiteSpaces[] = {
    {QLatin1String("normal"), WhiteSpace::Collapse},   {QLatin1String("nowrap"), WhiteSpace::Collapse},
    {QLatin1String("pre-line"), WhiteSpace::Collapse}, {QLatin1String("pre"), WhiteSpace::Preserve},
    {QLatin1String("pre-wrap"), WhiteSpace::Preserve}, {QLatin1String("break-spaces"), WhiteSpace::Preserve},
};

// Petite capitals are few fonts' and small ones otherwise (CSS Fonts 4 §6.6).
const Keyword<SmallCaps> variants[] = {
    {QLatin1String("normal"), SmallCaps::None},
    {QLatin1String("small-caps"), SmallCaps::OfSmallLetters},
    {QLatin1String("petite-caps"), SmallCaps::OfSmallLetters},
    {QLatin1String("all-small-caps"), SmallCaps::OfAllLetters},
    {QLatin1String("all-petite-caps"), SmallCaps::OfAllLetters},
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
    text.kerningSpacing.reset();
    if (value.compare(QLatin1String("auto"), Qt::CaseInsensitive) == 0)
        return true;
    double spacing = 0;
    if (!applySpacing(spacing, value, fontSize))
        return false;
    text.kerningSpacing = spacing;
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

// Lines that blink have none that could be drawn. False for what names no line.
bool addLine(InlineStyle &inlineStyle, QStringView word)
{
    const auto is = [word](const char *line) {
        return word.compare(QLatin1String(line), Qt::CaseInsensitive) == 0;
    };
    inlineStyle.underline = inlineStyle.underline || is("underline");
    inlineStyle.overline = inlineStyle.overline || is("overline");
    inlineStyle.lineThrough = inlineStyle.lineThrough || is("line-through");
    return is("underline") || is("overline") || is("line-through") || is("blink") || is("none");
}

bool applyLines(InlineStyle &inlineStyle, QStringView text)
{
    inlineStyle.underline = inlineStyle.overline = inlineStyle.lineThrough = false;
    const QVector<QStringView> words = cssWords(text);
    return !words.isEmpty() &&
           std::all_of(words.begin(), words.end(), [&](QStringView word) { return addLine(inlineStyle, word); });
}

// The colour of the part is its paint, stroke and all (SVG 2 §11.10.3).
bool applyLineColor(InlineStyle &inlineStyle, QStringView value)
{
    const std::optional<QColor> color = parseColor(value);
    const bool isOwn = value.compare(QLatin1String("currentColor"), Qt::CaseInsensitive) == 0;
    if (color || isOwn)
        inlineStyle.lineColor = isOwn ? std::nullopt : color;
    return color || isOwn;
}

bool applyLineThickness(InlineStyle &inlineStyle, QStringView value, double fontSize)
{
    if (value.compare(QLatin1String("auto"), Qt::CaseInsensitive) == 0 ||
        value.compare(QLatin1String("from-font"), Qt::CaseInsensitive) == 0) {
        inlineStyle.lineThickness.reset();
        return true;
    }
    const std::optional<Length> length = parseLength(value);
    if (!length || length->value < 0)
        return false;
    inlineStyle.lineThickness = toUserUnits(*length, Axis::Horizontal, {QSizeF(fontSize, fontSize), fontSize});
    return true;
}

// Lines, style, thickness and colour in any order; what is not said is as usual (CSS Text Decoration 4 §2.5).
bool applyDecoration(InlineStyle &inlineStyle, QStringView text, double fontSize)
{
    inlineStyle.underline = inlineStyle.overline = inlineStyle.lineThrough = false;
    inlineStyle.lineStyle = LineStyle::Solid;
    inlineStyle.lineColor.reset();
    inlineStyle.lineThickness.reset();
    const QVector<QStringView> words = cssWords(text);
    return !words.isEmpty() && std::all_of(words.begin(), words.end(), [&](QStringView word) {
        return addLine(inlineStyle, word) || applyKeyword(inlineStyle.lineStyle, word, lineStyles) ||
               applyLineThickness(inlineStyle, word, fontSize) || applyLineColor(inlineStyle, word);
    });
}

bool applyUnderlineOffset(TextStyle &text, QStringView value, double fontSize)
{
    text.underlineOffset.reset();
    if (value.compare(QLatin1String("auto"), Qt::CaseInsensitive) == 0)
        return true;
    const std::optional<Length> length = parseLength(value);
    if (length)
        text.underlineOffset = toUserUnits(*length, Axis::Horizontal, {QSizeF(fontSize, fontSize), fontSize});
    return length.has_value();
}

bool applyUnderlinePosition(TextStyle &text, QStringView value)
{
    text.underlineUnder = false;
    const QVector<QStringView> words = cssWords(value);
    return !words.isEmpty() && std::all_of(words.begin(), words.end(), [&](QStringView word) {
        const auto is = [word](const char *known) {
            return word.compare(QLatin1String(known), Qt::CaseInsensitive) == 0;
        };
        text.underlineUnder = text.underlineUnder || is("under");
        return is("auto") || is("from-font") || is("under") || is("left") || is("right");
    });
}

// Of all the words, those about ligatures and capitals count; the others name what few fonts have (CSS Fonts 4
// §6.11).
bool applyVariant(TextStyle &text, QStringView value)
{
    static const char *const others[] = {"sub",
                                         "super",
                                         "unicase",
                                         "titling-caps",
                                         "lining-nums",
                                         "oldstyle-nums",
                                         "proportional-nums",
                                         "tabular-nums",
                                         "diagonal-fractions",
                                         "stacked-fractions",
                                         "ordinal",
                                         "slashed-zero",
                                         "jis78",
                                         "jis83",
                                         "jis90",
                                         "jis04",
                                         "simplified",
                                         "traditional",
                                         "full-width",
                                         "proportional-width",
                                         "ruby",
                                         "historical-forms",
                                         "text",
                                         "emoji",
                                         "unicode"};
    text.smallCaps = SmallCaps::None;
    text.ligatures = true;
    const QVector<QStringView> words = cssWords(value);
    return !words.isEmpty() && std::all_of(words.begin(), words.end(), [&](QStringView word) {
        bool keeps = true;
        if (applyKeyword(text.smallCaps, word, variants))
            return true;
        if (applyKeyword(keeps, word, ligatures)) {
            text.ligatures = text.ligatures && keeps;
            return true;
        }
        return std::any_of(std::begin(others), std::end(others), [&](const char *other) {
            return word.compare(QLatin1String(other), Qt::CaseInsensitive) == 0;
        });
    });
}

bool applyLigatures(TextStyle &text, QStringView value)
{
    text.ligatures = true;
    const QVector<QStringView> words = cssWords(value);
    return !words.isEmpty() && std::all_of(words.begin(), words.end(), [&](QStringView word) {
        bool keeps = true;
        const bool known = applyKeyword(keeps, word, ligatures);
        text.ligatures = text.ligatures && keeps;
        return known;
    });
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
        return applyVariant(text, value);
    case AttributeId::FontVariantLigatures:
        return applyLigatures(text, value);
    case AttributeId::GlyphOrientationVertical:
        return applyKeyword(text.orientation, value, glyphOrientations);
    case AttributeId::Kerning:
        return applyKerning(text, value, fontSize);
    case AttributeId::LineHeight:
        return applyLineHeight(text, value, fontSize);
    case AttributeId::TextOrientation:
        return applyKeyword(text.orientation, value, orientations);
    case AttributeId::TextTransform:
        return applyKeyword(text.transform, value, textTransforms);
    case AttributeId::TextUnderlineOffset:
        return applyUnderlineOffset(text, value, fontSize);
    case AttributeId::TextUnderlinePosition:
        return applyUnderlinePosition(text, value);
    case AttributeId::LetterSpacing:
        return applySpacing(text.letterSpacing, value, fontSize);
    case AttributeId::WhiteSpace:
        return applyKeyword(text.whiteSpace, value, whiteSpaces);
    case AttributeId::WordSpacing:
        return applySpacing(text.wordSpacing, value, fontSize);
    case AttributeId::WritingMode:
        return applyKeyword(text.writingMode, value, writingModes);
    default:
        return false;
    }
}

bool applyToInline(InlineStyle &inlineStyle, AttributeId property, QStringView value, double fontSize)
{
    switch (property) {
    case AttributeId::AlignmentBaseline:
        return applyKeyword(inlineStyle.alignmentBaseline, value, baselines) ||
               applyKeyword(inlineStyle.alignmentBaseline, value, alignments);
    case AttributeId::BaselineShift:
        return applyBaselineShift(inlineStyle, value, fontSize);
    case AttributeId::TextDecoration:
        return applyDecoration(inlineStyle, value, fontSize);
    case AttributeId::TextDecorationColor:
        return applyLineColor(inlineStyle, value);
    case AttributeId::TextDecorationLine:
        return applyLines(inlineStyle, value);
    case AttributeId::TextDecorationStyle:
        return applyKeyword(inlineStyle.lineStyle, value, lineStyles);
    case AttributeId::TextDecorationThickness:
        return applyLineThickness(inlineStyle, value, fontSize);
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
           property == AttributeId::TextDecorationColor || property == AttributeId::TextDecorationLine ||
           property == AttributeId::TextDecorationStyle || property == AttributeId::TextDecorationThickness ||
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
        text.ligatures = from.ligatures;
        break;
    case AttributeId::FontVariantLigatures:
        text.ligatures = from.ligatures;
        break;
    case AttributeId::GlyphOrientationVertical:
    case AttributeId::TextOrientation:
        text.orientation = from.orientation;
        break;
    case AttributeId::Kerning:
        text.kerningSpacing = from.kerningSpacing;
        break;
    case AttributeId::LineHeight:
        text.lineHeightShare = from.lineHeightShare;
        text.lineHeight = from.lineHeight;
        break;
    case AttributeId::LetterSpacing:
        text.letterSpacing = from.letterSpacing;
        break;
    case AttributeId::TextTransform:
        text.transform = from.transform;
        break;
    case AttributeId::TextUnderlineOffset:
        text.underlineOffset = from.underlineOffset;
        break;
    case AttributeId::TextUnderlinePosition:
        text.underlineUnder = from.underlineUnder;
        break;
    case AttributeId::WhiteSpace:
        text.whiteSpace = from.whiteSpace;
        break;
    case AttributeId::WordSpacing:
        text.wordSpacing = from.wordSpacing;
        break;
    case AttributeId::WritingMode:
        text.writingMode = from.writingMode;
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
        copyInline(inlineStyle, AttributeId::TextDecorationColor, from);
        copyInline(inlineStyle, AttributeId::TextDecorationLine, from);
        copyInline(inlineStyle, AttributeId::TextDecorationStyle, from);
        copyInline(inlineStyle, AttributeId::TextDecorationThickness, from);
        break;
    case AttributeId::TextDecorationColor:
        inlineStyle.lineColor = from.lineColor;
        break;
    case AttributeId::TextDecorationLine:
        inlineStyle.underline = from.underline;
        inlineStyle.overline = from.overline;
        inlineStyle.lineThrough = from.lineThrough;
        break;
    case AttributeId::TextDecorationStyle:
        inlineStyle.lineStyle = from.lineStyle;
        break;
    case AttributeId::TextDecorationThickness:
        inlineStyle.lineThickness = from.lineThickness;
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
