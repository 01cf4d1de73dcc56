#include "properties/linecodecs.h"

#include "grammar/colors.h"
#include "grammar/csstext.h"
#include "grammar/numbers.h"

#include <QtCore/QStringList>

namespace Svg {

namespace {

/// Lines that a part asks for.
struct Lines
{
    bool under = false;
    bool over = false;
    bool through = false;

    /// Blinking is accepted and draws nothing. False for a word that names no line.
    bool add(QStringView word)
    {
        under = under || isWord(word, "underline");
        over = over || isWord(word, "overline");
        through = through || isWord(word, "line-through");
        return isWord(word, "underline") || isWord(word, "overline") || isWord(word, "line-through") ||
               isWord(word, "blink") || isWord(word, "none");
    }
    void apply(ComputedStyle &style) const
    {
        setIn(style, &InlineStyle::underline, under);
        setIn(style, &InlineStyle::overline, over);
        setIn(style, &InlineStyle::lineThrough, through);
    }
};

} // namespace

bool applyLines(ComputedStyle &style, QStringView text, const PropertyContext &)
{
    Lines lines;
    if (!allWords(text, [&](QStringView word) { return lines.add(word); }))
        return false;
    lines.apply(style);
    return true;
}

QString printLines(const ComputedStyle &style)
{
    const InlineStyle &part = inlineStyleOf(style);
    QStringList words;
    if (part.underline)
        words.append(QStringLiteral("underline"));
    if (part.overline)
        words.append(QStringLiteral("overline"));
    if (part.lineThrough)
        words.append(QStringLiteral("line-through"));
    return words.isEmpty() ? QStringLiteral("none") : words.join(QLatin1Char(' '));
}

std::optional<LineThicknessCodec::Value> LineThicknessCodec::read(QStringView text, const ComputedStyle &style,
                                                                  const PropertyContext &context)
{
    if (isWord(text, "from-font"))
        return Value();
    const std::optional<Length> length = parseLength(text);
    return length ? settle(*length, style, context) : AutoLengthCodec::read(text, style, context);
}

std::optional<LineThicknessCodec::Value>
LineThicknessCodec::settle(const Length &length, const ComputedStyle &style, const PropertyContext &context)
{
    return length.value < 0 ? std::nullopt : AutoLengthCodec::settle(length, style, context);
}

std::optional<LineColorCodec::Value> LineColorCodec::read(QStringView text, const ComputedStyle &,
                                                          const PropertyContext &)
{
    if (isWord(text, "currentColor"))
        return Value();
    const std::optional<QColor> color = parseColor(text);
    return color ? std::optional<Value>(color) : std::nullopt;
}

QString LineColorCodec::print(const Value &color)
{
    return color ? colorText(*color) : QStringLiteral("currentColor");
}

bool applyDecoration(ComputedStyle &style, QStringView text, const PropertyContext &context)
{
    const InlineStyle initial;
    Lines lines;
    LineStyle lineStyle = initial.lineStyle;
    std::optional<double> thickness;
    std::optional<QColor> color;
    const auto accept = [&](QStringView word) {
        if (lines.add(word) || applyKeyword(lineStyle, word, lineStyles))
            return true;
        if (const auto read = LineThicknessCodec::read(word, style, context)) {
            thickness = *read;
            return true;
        }
        const auto read = LineColorCodec::read(word, style, context);
        color = read.value_or(color);
        return read.has_value();
    };
    if (!allWords(text, accept))
        return false;
    lines.apply(style);
    setIn(style, &InlineStyle::lineStyle, lineStyle);
    setIn(style, &InlineStyle::lineThickness, thickness);
    setIn(style, &InlineStyle::lineColor, color);
    return true;
}

QString printDecoration(const ComputedStyle &style)
{
    const InlineStyle &part = inlineStyleOf(style);
    QStringList words{printLines(style)};
    if (part.lineStyle != LineStyle::Solid)
        words.append(keywordName(part.lineStyle, lineStyles));
    if (part.lineColor)
        words.append(colorText(*part.lineColor));
    if (part.lineThickness)
        words.append(numberText(*part.lineThickness));
    return words.join(QLatin1Char(' '));
}

} // namespace Svg
