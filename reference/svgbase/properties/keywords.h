#pragma once

#include <QtCore/QString>

#include <optional>

namespace Svg {

template<typename Value> struct Keyword
{
    QLatin1String name;
    Value value;
};

/// The value of the keyword in `text`; empty for any other text. Case does not matter (CSS Values 3 §2.1).
template<typename Value, size_t count>
std::optional<Value> keywordValue(QStringView text, const Keyword<Value> (&keywords)[count])
{
    for (const Keyword<Value> &keyword : keywords)
        if (text.compare(keyword.name, Qt::CaseInsensitive) == 0)
            return keyword.value;
    return std::nullopt;
}

/// The first keyword of a value; empty without one.
template<typename Value, size_t count> QString keywordName(Value value, const Keyword<Value> (&keywords)[count])
{
    for (const Keyword<Value> &keyword : keywords)
        if (keyword.value == value)
            return keyword.name;
    return QString();
}

/// Sets `target` to the value of the keyword in `text`; false for any other text.
template<typename Value, size_t count>
bool applyKeyword(Value &target, QStringView text, const Keyword<Value> (&keywords)[count])
{
    const std::optional<Value> value = keywordValue(text, keywords);
    if (value)
        target = *value;
    return value.has_value();
}

} // namespace Svg
