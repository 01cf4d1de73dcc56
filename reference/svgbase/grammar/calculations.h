#pragma once

#include "grammar/lengths.h"

#include <QtCore/QPair>
#include <QtCore/QVector>

namespace Svg {

/// Names of numbers in a calculation, in addition to "e", "pi", "infinity" and "nan"; in lower case.
using CalculationNames = QVector<QPair<QLatin1String, double>>;

/// Result of a calculation without lengths; an angle in degrees.
struct CalculatedNumber
{
    enum Kind { Number, Percent, Angle };
    Kind kind = Number;
    double value = 0;
};

/// A length given by a mathematical function (CSS Values 4 §10): "calc", "min", "max", "clamp", "round", "mod",
/// "rem", "abs", "sign", "hypot" and, of numbers and angles, "sqrt", "pow", "exp", "log", "sin", "cos", "tan",
/// "asin", "acos", "atan" and "atan2". It may contain sums of percentages, font sizes and user units. No value for
/// invalid text or a mixture with other units.
std::optional<Length> parseCalculation(QStringView text);

/// The same for numbers, percentages or angles; moves the cursor behind the function.
std::optional<CalculatedNumber> readCalculation(Cursor &cursor, const CalculationNames &names);

/// Evaluates a deferred length once percentages and font sizes are known.
double calculated(const DeferredLength &length, double percentBase, double fontSize);

} // namespace Svg
