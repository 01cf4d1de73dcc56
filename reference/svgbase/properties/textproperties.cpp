#include "properties/textproperties.h"

#include "grammar/colors.h"
#include "grammar/csstext.h"
#include "grammar/inputlimits.h"
#include "grammar/numbers.h"
#include "properties/linecodecs.h"

#include <algorithm>

namespace Svg {

namespace {

/// Larger ones make no readable letters.
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

// The other three align only parts (SVG 1.1 §10.9.2).
const Keyword<Baseline> alignments[] = {
    {QLatin1String("auto"), Baseline::Auto},
    {QLatin1String("baseline"), Baseline::Auto},
    {QLatin1String("use-script"), Baseline::Auto},
    {QLatin1String("alphabetic"), Baseline::Alphabetic},
    {QLatin1String("central"), Baseline::Central},
    {QLatin1String("hanging"), Baseline::Hanging},
    {QLatin1String("mathematical"), Baseline::Mathematical},
    {QLatin1String("middle"), Baseline::Middle},
    {QLatin1String("after-edge"), Baseline::TextAfterEdge},
    {QLatin1String("ideographic"), Baseline::TextAfterEdge},
    {QLatin1String("text-after-edge"), Baseline::TextAfterEdge},
    {QLatin1String("text-bottom"), Baseline::TextAfterEdge},
    {QLatin1String("before-edge"), Baseline::TextBeforeEdge},
    {QLatin1String("text-before-edge"), Baseline::TextBeforeEdge},
    {QLatin1String("text-top"), Baseline::TextBeforeEdge},
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
    {QLatin1String("horizontal-tb"), WritingMode::Horizontal},
    {QLatin1String("lr"), WritingMode::Horizontal},
    {QLatin1String("lr-tb"), WritingMode::Horizontal},
    {QLatin1String("rl"), WritingMode::Horizontal},
    {QLatin1String("rl-tb"), WritingMode::Horizontal},
    {QLatin1String("vertical-rl"), WritingMode::Vertical},
    {QLatin1String("vertical-lr"), WritingMode::Vertical},
    {QLatin1String("tb"), WritingMode::Vertical},
    {QLatin1String("tb-lr"), WritingMode::Vertical},
    {QLatin1String("tb-rl"), WritingMode::Vertical},
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

// Ligatures beyond the usual ones do not change the drawing.
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

// Few fonts have petite capitals; others show small ones (CSS Fonts 4 §6.6).
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

const Keyword<InlineStyle::Shift> shifts[] = {
    {QLatin1String("sub"), InlineStyle::Sub},
    {QLatin1String("super"), InlineStyle::Super},
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

// The words of ligatures that change the drawing.
const Keyword<bool> printedLigatures[] = {
    {QLatin1String("normal"), true},
    {QLatin1String("none"), false},
};

// Words of "font-variant" for features of few fonts (CSS Fonts 4 §6.11).
const char *const otherVariants[] = {"sub",
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

// A length replaces the font's own kerning (SVG 1.1 §10.11).
struct KerningCodec : AutoLengthCodec
{
    static std::optional<Value> read(QStringView text, const ComputedStyle &style, const PropertyContext &context)
    {
        return text == QLatin1String("normal") ? Value(0) : AutoLengthCodec::read(text, style, context);
    }
};

/// Shares of the font size, 0 for "none".
struct SizeAdjustCodec
{
    static std::optional<double> read(QStringView text, const ComputedStyle &style, const PropertyContext &context)
    {
        if (isWord(text, "none"))
            return 0;
        const std::optional<double> number = parseNumber(text);
        return number ? settle({*number}, style, context) : std::nullopt;
    }
    static std::optional<double> settle(const Length &length, const ComputedStyle &, const PropertyContext &)
    {
        const bool isShare = length.unit == Unit::User && length.value >= 0;
        return isShare ? std::optional<double>(qMin(length.value, largestSizeAdjust)) : std::nullopt;
    }
    static QString print(double adjust) { return adjust == 0 ? QStringLiteral("none") : numberText(adjust); }
    static std::optional<double> number(double adjust) { return adjust; }
};

/// Percent of the normal width.
struct StretchCodec
{
    static std::optional<int> read(QStringView text, const ComputedStyle &style, const PropertyContext &context)
    {
        const int inherited = textStyleOf(context.parent).stretch;
        if (text == QLatin1String("narrower"))
            return neighbour(inherited, -1);
        if (text == QLatin1String("wider"))
            return neighbour(inherited, 1);
        if (const std::optional<int> stretch = keywordValue(text, stretches))
            return stretch;
        const std::optional<Length> length = parseLength(text);
        return length ? settle(*length, style, context) : std::nullopt;
    }
    // Widths between those of the keywords are drawn as the nearest one (CSS Fonts 4 §2.5).
    static std::optional<int> settle(const Length &length, const ComputedStyle &, const PropertyContext &)
    {
        const bool isShare = length.unit == Unit::Percent && length.value >= 0;
        return isShare ? std::optional<int>(qRound(qBound(50.0, length.value, 200.0))) : std::nullopt;
    }
    static QString print(int stretch)
    {
        const QString name = keywordName(stretch, stretches);
        return name.isEmpty() ? numberText(stretch) + QLatin1Char('%') : name;
    }

private:
    static int neighbour(int stretch, int step)
    {
        const int count = int(std::size(stretches));
        for (int i = 0; i < count; ++i)
            if (stretches[i].value == stretch)
                return stretches[qBound(0, i + step, count - 1)].value;
        return stretch;
    }
};

std::optional<TypedValue> stretchValue(const ComputedStyle &style)
{
    return TypedValue(QVector<Length>{{double(textStyleOf(style).stretch), Unit::Percent}});
}

constexpr PropertyAnimation stretchAnimation{PropertyAnimation::Lengths, false, stretchValue,
                                             assignNumber<&TextStyle::stretch, StretchCodec>};

bool setLineHeight(ComputedStyle &style, double share, double height)
{
    if (share < 0 || height < 0)
        return false;
    setIn(style, &TextStyle::lineHeightShare, share);
    setIn(style, &TextStyle::lineHeight, height);
    return true;
}

bool applyLineHeight(ComputedStyle &style, QStringView text, const PropertyContext &context)
{
    if (const std::optional<double> share = parseNumber(text))
        return setLineHeight(style, *share, 0);
    const std::optional<double> height = SpacingCodec::read(text, style, context);
    return height && setLineHeight(style, 0, *height);
}

QString printLineHeight(const ComputedStyle &style)
{
    const TextStyle &text = textStyleOf(style);
    if (text.lineHeight > 0)
        return numberText(text.lineHeight) + QLatin1String("px");
    return text.lineHeightShare > 0 ? numberText(text.lineHeightShare) : QStringLiteral("normal");
}

std::optional<TypedValue> lineHeightValue(const ComputedStyle &style)
{
    const TextStyle &text = textStyleOf(style);
    return text.lineHeightShare > 0 ? std::optional<TypedValue>(QVector<Length>{{text.lineHeightShare}})
                                    : std::nullopt;
}

// A length without a unit is a share of the font size.
bool assignLineHeight(ComputedStyle &style, const TypedValue &value, const PropertyContext &)
{
    const auto *lengths = std::get_if<QVector<Length>>(&value);
    if (!lengths || lengths->size() != 1)
        return false;
    const Length &length = lengths->constFirst();
    return length.unit == Unit::User ? setLineHeight(style, length.value, 0)
                                     : setLineHeight(style, 0, relativeToFont(length, style));
}

constexpr PropertyAnimation lineHeightAnimation{PropertyAnimation::Lengths, false, lineHeightValue,
                                                assignLineHeight};

/// User units; 0 for lines of any length.
struct InlineSizeCodec
{
    static std::optional<double> read(QStringView text, const ComputedStyle &style, const PropertyContext &context)
    {
        if (isWord(text, "auto"))
            return 0;
        const std::optional<Length> length = parseLength(text);
        return length ? settle(*length, style, context) : std::nullopt;
    }
    // Percentages refer to the width of the viewport (SVG 2 §11.7.1).
    static std::optional<double> settle(const Length &length, const ComputedStyle &style,
                                        const PropertyContext &context)
    {
        if (length.value < 0)
            return std::nullopt;
        return toUserUnits(length, Axis::Horizontal, lengthContext(style, context));
    }
    static QString print(double size) { return size == 0 ? QStringLiteral("auto") : numberText(size); }
    static std::optional<double> number(double size) { return size; }
};

bool setShift(ComputedStyle &style, double length)
{
    setIn(style, &InlineStyle::shift, InlineStyle::Length);
    setIn(style, &InlineStyle::baselineShift, length);
    return true;
}

bool applyShift(ComputedStyle &style, QStringView text, const PropertyContext &context)
{
    if (const std::optional<InlineStyle::Shift> shift = keywordValue(text, shifts)) {
        setIn(style, &InlineStyle::shift, *shift);
        return true;
    }
    if (isWord(text, "baseline"))
        return setShift(style, 0);
    const std::optional<double> length = SpacingCodec::read(text, style, context);
    return length && setShift(style, *length);
}

QString printShift(const ComputedStyle &style)
{
    const InlineStyle &part = inlineStyleOf(style);
    if (part.shift != InlineStyle::Length)
        return keywordName(part.shift, shifts);
    return part.baselineShift == 0 ? QStringLiteral("baseline") : numberText(part.baselineShift);
}

std::optional<TypedValue> shiftValue(const ComputedStyle &style)
{
    const InlineStyle &part = inlineStyleOf(style);
    return part.shift == InlineStyle::Length ? std::optional<TypedValue>(QVector<Length>{{part.baselineShift}})
                                             : std::nullopt;
}

bool assignShift(ComputedStyle &style, const TypedValue &value, const PropertyContext &)
{
    const auto *lengths = std::get_if<QVector<Length>>(&value);
    return lengths && lengths->size() == 1 && setShift(style, relativeToFont(lengths->constFirst(), style));
}

constexpr PropertyAnimation shiftAnimation{PropertyAnimation::Lengths, false, shiftValue, assignShift};

/// Whether underlines go below all letters.
struct UnderlinePositionCodec
{
    static std::optional<bool> read(QStringView text, const ComputedStyle &, const PropertyContext &)
    {
        bool under = false;
        const bool known = allWords(text, [&](QStringView word) {
            under = under || isWord(word, "under");
            return isWord(word, "under") || isWord(word, "auto") || isWord(word, "from-font") ||
                   isWord(word, "left") || isWord(word, "right");
        });
        return known ? std::optional<bool>(under) : std::nullopt;
    }
    static QString print(bool under) { return under ? QStringLiteral("under") : QStringLiteral("auto"); }
};

bool applyVariant(ComputedStyle &style, QStringView text, const PropertyContext &)
{
    SmallCaps caps = SmallCaps::None;
    bool keepsLigatures = true;
    const auto accept = [&](QStringView word) {
        if (applyKeyword(caps, word, variants))
            return true;
        if (const std::optional<bool> keeps = keywordValue(word, ligatures)) {
            keepsLigatures = keepsLigatures && *keeps;
            return true;
        }
        return std::any_of(std::begin(otherVariants), std::end(otherVariants),
                           [&](const char *other) { return isWord(word, other); });
    };
    if (!allWords(text, accept))
        return false;
    setIn(style, &TextStyle::smallCaps, caps);
    setIn(style, &TextStyle::ligatures, keepsLigatures);
    return true;
}

QString printVariant(const ComputedStyle &style)
{
    const TextStyle &text = textStyleOf(style);
    if (text.ligatures)
        return keywordName(text.smallCaps, variants);
    const QString none = QStringLiteral("no-common-ligatures");
    return text.smallCaps == SmallCaps::None ? none
                                             : keywordName(text.smallCaps, variants) + QLatin1Char(' ') + none;
}

struct LigaturesCodec : KeywordCodec<printedLigatures>
{
    static std::optional<bool> read(QStringView text, const ComputedStyle &, const PropertyContext &)
    {
        bool keeps = true;
        const bool known = allWords(text, [&](QStringView word) {
            const std::optional<bool> value = keywordValue(word, ligatures);
            keeps = keeps && value.value_or(true);
            return value.has_value();
        });
        return known ? std::optional<bool>(keeps) : std::nullopt;
    }
};

// Two old keywords keep the baseline of the surrounding text (SVG 1.1 §10.9.2).
struct DominantBaselineCodec : KeywordCodec<baselines>
{
    static std::optional<Baseline> read(QStringView text, const ComputedStyle &, const PropertyContext &context)
    {
        const bool keeps = isWord(text, "no-change") || isWord(text, "reset-size");
        return keeps ? textStyleOf(context.parent).dominantBaseline : keywordValue(text, baselines);
    }
};

// Without a value, a text follows "xml:space", whose default has the meaning of the initial value.
struct WhiteSpaceCodec : KeywordCodec<whiteSpaces>
{
    static QString print(WhiteSpace space)
    {
        return keywordName(space == WhiteSpace::Unset ? WhiteSpace::Collapse : space, whiteSpaces);
    }
};

constexpr Property rows[] = {
    keywordRow<&InlineStyle::alignmentBaseline, alignments>(AttributeId::AlignmentBaseline),
    propertyRow<&InlineStyle::baselineShift, &InlineStyle::shift>(AttributeId::BaselineShift, applyShift,
                                                                  printShift, shiftAnimation),
    keywordRow<&TextStyle::rightToLeft, directions>(AttributeId::Direction),
    valueRow<&TextStyle::dominantBaseline, DominantBaselineCodec>(AttributeId::DominantBaseline),
    keywordRow<&TextStyle::kerning, kernings>(AttributeId::FontKerning),
    numberRow<&TextStyle::sizeAdjust, SizeAdjustCodec>(AttributeId::FontSizeAdjust),
    propertyRow<&TextStyle::stretch>(AttributeId::FontStretch, applyMember<&TextStyle::stretch, StretchCodec>,
                                     printMember<&TextStyle::stretch, StretchCodec>, stretchAnimation),
    propertyRow<&TextStyle::smallCaps, &TextStyle::ligatures>(AttributeId::FontVariant, applyVariant, printVariant,
                                                              discrete),
    valueRow<&TextStyle::ligatures, LigaturesCodec>(AttributeId::FontVariantLigatures),
    keywordRow<&TextStyle::orientation, glyphOrientations>(AttributeId::GlyphOrientationVertical),
    numberRow<&InlineStyle::inlineSize, InlineSizeCodec>(AttributeId::InlineSize),
    numberRow<&TextStyle::kerningSpacing, KerningCodec>(AttributeId::Kerning),
    numberRow<&TextStyle::letterSpacing, SpacingCodec>(AttributeId::LetterSpacing),
    propertyRow<&TextStyle::lineHeightShare, &TextStyle::lineHeight>(AttributeId::LineHeight, applyLineHeight,
                                                                     printLineHeight, lineHeightAnimation),
    propertyRow<&InlineStyle::underline, &InlineStyle::overline, &InlineStyle::lineThrough, &InlineStyle::lineStyle,
                &InlineStyle::lineColor, &InlineStyle::lineThickness>(AttributeId::TextDecoration, applyDecoration,
                                                                      printDecoration, discrete),
    valueRow<&InlineStyle::lineColor, LineColorCodec>(AttributeId::TextDecorationColor),
    propertyRow<&InlineStyle::underline, &InlineStyle::overline, &InlineStyle::lineThrough>(
        AttributeId::TextDecorationLine, applyLines, printLines, discrete),
    keywordRow<&InlineStyle::lineStyle, lineStyles>(AttributeId::TextDecorationStyle),
    numberRow<&InlineStyle::lineThickness, LineThicknessCodec>(AttributeId::TextDecorationThickness),
    keywordRow<&TextStyle::orientation, orientations>(AttributeId::TextOrientation),
    keywordRow<&TextStyle::transform, textTransforms>(AttributeId::TextTransform),
    numberRow<&TextStyle::underlineOffset, AutoLengthCodec>(AttributeId::TextUnderlineOffset),
    valueRow<&TextStyle::underlineUnder, UnderlinePositionCodec>(AttributeId::TextUnderlinePosition),
    keywordRow<&InlineStyle::unicodeBidi, bidiModes>(AttributeId::UnicodeBidi),
    valueRow<&TextStyle::whiteSpace, WhiteSpaceCodec>(AttributeId::WhiteSpace),
    numberRow<&TextStyle::wordSpacing, SpacingCodec>(AttributeId::WordSpacing),
    keywordRow<&TextStyle::writingMode, writingModes>(AttributeId::WritingMode),
};
static_assert(isComplete(rows, AttributeId::AlignmentBaseline, AttributeId::WritingMode));

} // namespace

const Property *textProperties()
{
    return rows;
}

} // namespace Svg
