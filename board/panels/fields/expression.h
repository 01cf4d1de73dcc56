#pragma once

#include <QtCore/QString>

#include <optional>

namespace board {

/// Surroundings of an expression that is typed into a field.
struct ExpressionContext
{
    /// The present value, which "+10", "*2" and "50 %" refer to; none where there are several.
    std::optional<double> present;
    /// Unit of the field; it may be typed. "px" allows lengths on paper, too.
    QString unit;
};

/// The value of "120/3", "2*(3+4)", "5 cm", "+10" or "50 %", with a point or a comma for decimals. None for text
/// that is no such expression, a division by zero, and results that are not finite.
std::optional<double> expressionValue(const QString &text, const ExpressionContext &context);

} // namespace board
