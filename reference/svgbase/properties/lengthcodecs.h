#pragma once

#include "properties/propertyrows.h"

namespace Svg {

/// Percentages refer to the font size (CSS Text 4 §9).
double relativeToFont(const Length &length, const ComputedStyle &style);

/// User units; "normal" is 0.
struct SpacingCodec
{
    static std::optional<double> read(QStringView text, const ComputedStyle &style, const PropertyContext &);
    static std::optional<double> settle(const Length &length, const ComputedStyle &style, const PropertyContext &);
    static QString print(double spacing);
    static std::optional<double> number(double spacing) { return spacing; }
};

/// A length in user units, empty for "auto".
struct AutoLengthCodec
{
    using Value = std::optional<double>;

    static std::optional<Value> read(QStringView text, const ComputedStyle &style, const PropertyContext &);
    static std::optional<Value> settle(const Length &length, const ComputedStyle &style, const PropertyContext &);
    static QString print(const Value &length);
    static std::optional<double> number(const Value &length) { return length; }
};

} // namespace Svg
