#pragma once

#include <QtCore/QString>

namespace Svg {

template<typename Value> struct Keyword
{
    QLatin1String name;
    Value value;
};

/// Replaces `target` by the value of the keyword that `text` is; false when it is none of them.
/// Case does not matter (CSS Values 3 §2.1).
template<typename Value, size_t count>
bool applyKeyword(Value &target, QStringView text, const Keyword<Value> (&keywords)[count])
{
    for (const Keyword<Value> &keyword : keywords) {
        if (text.compare(keyword.name, Qt::CaseInsensitive) == 0) {
            target = keyword.value;
            return true;
        }
    }
    return false;
}

} // namespace Svg
