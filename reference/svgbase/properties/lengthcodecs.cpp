#include "properties/lengthcodecs.h"

#include "grammar/numbers.h"

namespace Svg {

namespace {

std::optional<double> fontLength(QStringView text, const ComputedStyle &style)
{
    const std::optional<Length> length = parseLength(text);
    return length ? std::optional<double>(relativeToFont(*length, style)) : std::nullopt;
}

} // namespace

double relativeToFont(const Length &length, const ComputedStyle &style)
{
    const double size = style.font.size;
    return toUserUnits(length, Axis::Horizontal, {QSizeF(size, size), size});
}

std::optional<double> SpacingCodec::read(QStringView text, const ComputedStyle &style, const PropertyContext &)
{
    return text == QLatin1String("normal") ? 0 : fontLength(text, style);
}

std::optional<double> SpacingCodec::settle(const Length &length, const ComputedStyle &style,
                                           const PropertyContext &)
{
    return relativeToFont(length, style);
}

QString SpacingCodec::print(double spacing)
{
    return spacing == 0 ? QStringLiteral("normal") : numberText(spacing);
}

std::optional<AutoLengthCodec::Value> AutoLengthCodec::read(QStringView text, const ComputedStyle &style,
                                                            const PropertyContext &)
{
    if (isWord(text, "auto"))
        return Value();
    const std::optional<double> length = fontLength(text, style);
    return length ? std::optional<Value>(length) : std::nullopt;
}

std::optional<AutoLengthCodec::Value> AutoLengthCodec::settle(const Length &length, const ComputedStyle &style,
                                                              const PropertyContext &)
{
    return Value(relativeToFont(length, style));
}

QString AutoLengthCodec::print(const Value &length)
{
    return length ? numberText(*length) : QStringLiteral("auto");
}

} // namespace Svg
