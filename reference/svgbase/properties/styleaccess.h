#pragma once

#include "properties/computedstyle.h"

#include <type_traits>

namespace Svg {

// Pointers to members read and write a value of a style in whichever record it is stored. Records that few elements
// have are created, or detached from those of other elements, only when a value changes.

template<typename Member> struct MemberOf;
template<typename Member, typename Home> struct MemberOf<Member Home::*>
{
    using Value = Member;
    /// Children start from the initial values of these.
    static constexpr bool inherited =
        !std::is_same_v<Home, OwnStyle> && !std::is_same_v<Home, EffectStyle> && !std::is_same_v<Home, InlineStyle>;
};

template<auto member> using ValueOf = typename MemberOf<decltype(member)>::Value;

inline const ComputedStyle &homeIn(const ComputedStyle &style, const OwnStyle *)
{
    return style;
}

inline const ComputedStyle &homeIn(const ComputedStyle &style, const ComputedStyle *)
{
    return style;
}

inline const FontStyle &homeIn(const ComputedStyle &style, const FontStyle *)
{
    return style.font;
}

inline const TextStyle &homeIn(const ComputedStyle &style, const TextStyle *)
{
    return textStyleOf(style);
}

inline const InlineStyle &homeIn(const ComputedStyle &style, const InlineStyle *)
{
    return inlineStyleOf(style);
}

inline const EffectStyle &homeIn(const ComputedStyle &style, const EffectStyle *)
{
    return effectStyleOf(style);
}

inline const MarkerStyle &homeIn(const ComputedStyle &style, const MarkerStyle *)
{
    return markerStyleOf(style);
}

template<typename Record> Record &ownRecord(QSharedDataPointer<Record> &pointer)
{
    if (!pointer)
        pointer = new Record;
    return *pointer;
}

inline ComputedStyle &changedHome(ComputedStyle &style, const OwnStyle *)
{
    return style;
}

inline ComputedStyle &changedHome(ComputedStyle &style, const ComputedStyle *)
{
    return style;
}

inline FontStyle &changedHome(ComputedStyle &style, const FontStyle *)
{
    return style.font;
}

inline TextStyle &changedHome(ComputedStyle &style, const TextStyle *)
{
    return ownRecord(style.text);
}

inline InlineStyle &changedHome(ComputedStyle &style, const InlineStyle *)
{
    return ownRecord(style.inlineText);
}

inline EffectStyle &changedHome(ComputedStyle &style, const EffectStyle *)
{
    return ownRecord(style.effects);
}

inline MarkerStyle &changedHome(ComputedStyle &style, const MarkerStyle *)
{
    return ownRecord(style.markers);
}

template<typename Value, typename Home> const Value &valueIn(const ComputedStyle &style, Value Home::*member)
{
    return homeIn(style, static_cast<const Home *>(nullptr)).*member;
}

template<typename Value, typename Home>
void setIn(ComputedStyle &style, Value Home::*member, const std::common_type_t<Value> &value)
{
    if (!(valueIn(style, member) == value))
        changedHome(style, static_cast<const Home *>(nullptr)).*member = value;
}

/// Copies members of one style to another.
template<auto... members> void copyMembers(ComputedStyle &style, const ComputedStyle &from)
{
    (setIn(style, members, valueIn(from, members)), ...);
}

} // namespace Svg
