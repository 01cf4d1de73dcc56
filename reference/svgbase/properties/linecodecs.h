#pragma once

#include "properties/lengthcodecs.h"

namespace Svg {

// Properties of lines that decorate text (CSS Text Decoration 4 §2).

inline const Keyword<LineStyle> lineStyles[] = {
    {QLatin1String("solid"), LineStyle::Solid},   {QLatin1String("double"), LineStyle::Double},
    {QLatin1String("dotted"), LineStyle::Dotted}, {QLatin1String("dashed"), LineStyle::Dashed},
    {QLatin1String("wavy"), LineStyle::Wavy},
};

bool applyLines(ComputedStyle &style, QStringView text, const PropertyContext &context);
QString printLines(const ComputedStyle &style);

/// Lines, style, thickness and colour in any order; omitted ones get their initial values.
bool applyDecoration(ComputedStyle &style, QStringView text, const PropertyContext &context);
QString printDecoration(const ComputedStyle &style);

/// Empty leaves it to the font.
struct LineThicknessCodec : AutoLengthCodec
{
    static std::optional<Value> read(QStringView text, const ComputedStyle &style, const PropertyContext &context);
    static std::optional<Value> settle(const Length &length, const ComputedStyle &style,
                                       const PropertyContext &context);
};

/// Empty for the paint of the part, including its stroke (SVG 2 §11.10.3).
struct LineColorCodec
{
    using Value = std::optional<QColor>;

    static std::optional<Value> read(QStringView text, const ComputedStyle &, const PropertyContext &);
    static QString print(const Value &color);
};

} // namespace Svg
