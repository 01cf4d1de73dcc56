#pragma once

#include <QtCore/QString>

#include <functional>
#include <optional>

namespace Svg {

/// What a condition of a style sheet comes to; what is not known is neither (Media Queries 4 §3.2).
enum class Truth : quint8 { No, Unknown, Yes };

/// Decides what stands in parentheses; the name in front of them is empty where there is none.
using ConditionLeaf = std::function<Truth(const QString &function, QStringView content)>;

/// The condition of an at-rule: terms in parentheses, joined by "and", by "or", or turned by "not" (CSS Conditional
/// Rules 3 §6). Nothing when it breaks the grammar or is nested too deep.
std::optional<Truth> evaluateCondition(QStringView text, const ConditionLeaf &leaf);

} // namespace Svg
