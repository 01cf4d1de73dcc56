#pragma once

#include <QtCore/QString>

#include <functional>
#include <optional>

namespace Svg {

/// Value of a condition of a style sheet; unknown parts are neither true nor false (Media Queries 4 §3.2).
enum class Truth : quint8 { No, Unknown, Yes };

/// Decides a term in parentheses; `function` is the name in front of them, empty if there is none.
using ConditionLeaf = std::function<Truth(const QString &function, QStringView content)>;

/// The condition of an at-rule: terms in parentheses, joined by "and" or "or", or negated by "not" (CSS Conditional
/// Rules 3 §6). No value if it is invalid or nested too deep.
std::optional<Truth> evaluateCondition(QStringView text, const ConditionLeaf &leaf);

} // namespace Svg
