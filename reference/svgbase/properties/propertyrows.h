#pragma once

#include "grammar/csstext.h"
#include "properties/keywords.h"
#include "properties/property.h"
#include "properties/styleaccess.h"

#include <algorithm>

namespace Svg {

// A codec reads and prints the value of one member:
//   static std::optional<Value> read(QStringView text, const ComputedStyle &style, const PropertyContext &context);
//   static QString print(const Value &value);
// That of an animated number has also
//   static std::optional<Value> settle(const Length &length, const ComputedStyle &style, const PropertyContext &);
//   static std::optional<double> number(const Value &value);

using ApplyText = bool (*)(ComputedStyle &, QStringView, const PropertyContext &);
using PrintText = QString (*)(const ComputedStyle &);

constexpr PropertyAnimation discrete{};

/// A property stored in the given members.
template<auto... members>
constexpr Property propertyRow(AttributeId id, ApplyText apply, PrintText print, const PropertyAnimation &animation)
{
    return {id, (MemberOf<decltype(members)>::inherited && ...), apply, copyMembers<members...>, print, animation};
}

constexpr Property forStyleOnly(Property row)
{
    row.isForStyleOnly = true;
    return row;
}

template<auto member, typename Codec>
bool applyMember(ComputedStyle &style, QStringView text, const PropertyContext &context)
{
    const std::optional<ValueOf<member>> value = Codec::read(text, style, context);
    if (value)
        setIn(style, member, *value);
    return value.has_value();
}

template<auto member, typename Codec> QString printMember(const ComputedStyle &style)
{
    return Codec::print(valueIn(style, member));
}

/// A value that is not interpolated.
template<auto member, typename Codec> constexpr Property valueRow(AttributeId id)
{
    return propertyRow<member>(id, applyMember<member, Codec>, printMember<member, Codec>, discrete);
}

/// One of a list of keywords; printed as the first one of its meaning.
template<const auto &keywords> struct KeywordCodec
{
    using Value = decltype(keywords[0].value);

    static std::optional<std::remove_const_t<Value>> read(QStringView text, const ComputedStyle &,
                                                          const PropertyContext &)
    {
        return keywordValue(text, keywords);
    }
    static QString print(const Value &value) { return keywordName(value, keywords); }
};

template<auto member, const auto &keywords> constexpr Property keywordRow(AttributeId id)
{
    return valueRow<member, KeywordCodec<keywords>>(id);
}

template<auto member, typename Codec> std::optional<TypedValue> numberValue(const ComputedStyle &style)
{
    const std::optional<double> number = Codec::number(valueIn(style, member));
    return number ? std::optional<TypedValue>(QVector<Length>{{*number}}) : std::nullopt;
}

template<auto member, typename Codec>
bool assignNumber(ComputedStyle &style, const TypedValue &value, const PropertyContext &context)
{
    const auto *lengths = std::get_if<QVector<Length>>(&value);
    if (!lengths || lengths->size() != 1)
        return false;
    const std::optional<ValueOf<member>> settled = Codec::settle(lengths->constFirst(), style, context);
    if (settled)
        setIn(style, member, *settled);
    return settled.has_value();
}

enum class Sign : bool { Any, Positive };

/// A number or a length.
template<auto member, typename Codec> constexpr Property numberRow(AttributeId id, Sign sign = Sign::Any)
{
    return propertyRow<member>(id, applyMember<member, Codec>, printMember<member, Codec>,
                               {PropertyAnimation::Lengths, sign == Sign::Positive, numberValue<member, Codec>,
                                assignNumber<member, Codec>});
}

template<auto member> std::optional<TypedValue> colorValue(const ComputedStyle &style)
{
    return TypedValue(valueIn(style, member));
}

template<auto member> bool assignColor(ComputedStyle &style, const TypedValue &value, const PropertyContext &)
{
    const auto *color = std::get_if<QColor>(&value);
    if (color)
        setIn(style, member, *color);
    return color;
}

template<auto member, typename Codec> constexpr Property colorRow(AttributeId id)
{
    return propertyRow<member>(id, applyMember<member, Codec>, printMember<member, Codec>,
                               {PropertyAnimation::Colors, false, colorValue<member>, assignColor<member>});
}

/// Whether rows are those of all properties from the first to the last, in the order of their ids.
template<size_t count> constexpr bool isComplete(const Property (&rows)[count], AttributeId first, AttributeId last)
{
    for (size_t i = 0; i < count; ++i)
        if (int(rows[i].id) != int(first) + int(i))
            return false;
    return int(first) + int(count) - 1 == int(last);
}

/// @name Values that several properties have
/// @{

bool isWord(QStringView text, const char *word);
/// A reference to an element, or "none" for an empty id.
QString referenceText(const QString &id);
/// "none" or a reference; false for anything else.
bool readReference(QStringView text, QString *id);
/// Lengths of a property are relative to the viewport and the element's font.
LengthContext lengthContext(const ComputedStyle &style, const PropertyContext &context);

/// Whether a text has words and all of them are accepted.
template<typename Accept> bool allWords(QStringView text, Accept accept)
{
    const QVector<QStringView> words = cssWords(text);
    return !words.isEmpty() && std::all_of(words.begin(), words.end(), accept);
}

/// An opacity between 0 and 1.
struct OpacityCodec
{
    static std::optional<double> read(QStringView text, const ComputedStyle &, const PropertyContext &);
    static std::optional<double> settle(const Length &length, const ComputedStyle &, const PropertyContext &);
    static QString print(double value);
    static std::optional<double> number(double value) { return value; }
};

/// A colour; "currentColor" is the element's.
struct ColorCodec
{
    static std::optional<QColor> read(QStringView text, const ComputedStyle &style, const PropertyContext &);
    static QString print(const QColor &color) { return colorText(color); }
};

/// @}

} // namespace Svg
