#pragma once

#include "grammar/lengths.h"

#include <QtCore/QPair>
#include <QtCore/QVector>

namespace Svg {

/// Words that stand for numbers in a calculation, beside "e", "pi", "infinity" and "nan"; in lower case.
using CalculationNames = QVector<QPair<QLatin1String, double>>;

/// What a calculation without lengths amounts to; an angle in degrees.
struct CalculatedNumber
{
    enum Kind { Number, Percent, Angle };
    Kind kind = Number;
    double value = 0;
};

/// A length that a mathematical function works out (CSS Values 4 §10): "calc", "min", "max", "clamp", "round",
/// "mod", "rem", "abs", "sign", "hypot" and, of numbers and angles, "sqrt", "pow", "exp", "log", "sin", "cos",
/// "tan", "asin", "acos", "atan" and "atan2". Sums of percentages, font sizes and user units may meet in it.
/// Nothing for what breaks the grammar or mixes other units with them.
std::optional<Length> parseCalculation(QStringView text);

/// The same of numbers, percentages or angles; the cursor is left behind the function.
std::optional<CalculatedNumber> readCalculation(Cursor &cursor, const CalculationNames &names);

/// What is left to work out until it is known what percentages and font sizes are.
double calculated(const DeferredLength &length, double percentBase, double fontSize);

} // namespace Svg
