#include "grammar/mathfunctions.h"

#include <QtCore/QtMath>
#include <QtCore/QtNumeric>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Svg {

namespace {

constexpr int anyCount = std::numeric_limits<int>::max();

struct FunctionRow
{
    QLatin1String name;
    MathFunction function;
    MathSignature signature;
    int least;
    int most;
};

const FunctionRow functionRows[] = {
    {QLatin1String("calc"), MathFunction::Calc, MathSignature::SameKind, 1, 1},
    {QLatin1String("min"), MathFunction::Minimum, MathSignature::SameKind, 1, anyCount},
    {QLatin1String("max"), MathFunction::Maximum, MathSignature::SameKind, 1, anyCount},
    {QLatin1String("clamp"), MathFunction::Clamp, MathSignature::SameKind, 3, 3},
    {QLatin1String("round"), MathFunction::RoundNearest, MathSignature::SameKind, 1, 2},
    {QLatin1String(), MathFunction::RoundUp, MathSignature::SameKind, 1, 2},
    {QLatin1String(), MathFunction::RoundDown, MathSignature::SameKind, 1, 2},
    {QLatin1String(), MathFunction::RoundToZero, MathSignature::SameKind, 1, 2},
    {QLatin1String("mod"), MathFunction::Modulo, MathSignature::SameKind, 2, 2},
    {QLatin1String("rem"), MathFunction::Remainder, MathSignature::SameKind, 2, 2},
    {QLatin1String("abs"), MathFunction::Absolute, MathSignature::SameKind, 1, 1},
    {QLatin1String("hypot"), MathFunction::Hypotenuse, MathSignature::SameKind, 1, anyCount},
    {QLatin1String("sign"), MathFunction::Sign, MathSignature::NumberOfAny, 1, 1},
    {QLatin1String("sqrt"), MathFunction::SquareRoot, MathSignature::Numbers, 1, 1},
    {QLatin1String("pow"), MathFunction::Power, MathSignature::Numbers, 2, 2},
    {QLatin1String("exp"), MathFunction::Exponential, MathSignature::Numbers, 1, 1},
    {QLatin1String("log"), MathFunction::Logarithm, MathSignature::Numbers, 1, 2},
    {QLatin1String("sin"), MathFunction::Sine, MathSignature::NumberOfAngle, 1, 1},
    {QLatin1String("cos"), MathFunction::Cosine, MathSignature::NumberOfAngle, 1, 1},
    {QLatin1String("tan"), MathFunction::Tangent, MathSignature::NumberOfAngle, 1, 1},
    {QLatin1String("asin"), MathFunction::ArcSine, MathSignature::AngleOfNumber, 1, 1},
    {QLatin1String("acos"), MathFunction::ArcCosine, MathSignature::AngleOfNumber, 1, 1},
    {QLatin1String("atan"), MathFunction::ArcTangent, MathSignature::AngleOfNumber, 1, 1},
    {QLatin1String("atan2"), MathFunction::ArcTangent2, MathSignature::AngleOfAny, 2, 2},
};

const FunctionRow &rowOf(MathFunction function)
{
    return *std::find_if(std::begin(functionRows), std::end(functionRows),
                         [function](const FunctionRow &row) { return row.function == function; });
}

// Rounds halves up.
double roundedTo(MathFunction way, double value, double step)
{
    const double steps = value / std::abs(step);
    switch (way) {
    case MathFunction::RoundUp:
        return std::ceil(steps) * std::abs(step);
    case MathFunction::RoundDown:
        return std::floor(steps) * std::abs(step);
    case MathFunction::RoundToZero:
        return std::trunc(steps) * std::abs(step);
    default:
        return std::floor(steps + 0.5) * std::abs(step);
    }
}

double hypotenuse(const QVector<double> &sides)
{
    double length = 0;
    for (const double side : sides)
        length = std::hypot(length, side);
    return length;
}

double signOf(double value)
{
    return value > 0 ? 1 : value < 0 ? -1 : value;
}

} // namespace

std::optional<MathFunction> mathFunction(QLatin1String name)
{
    for (const FunctionRow &row : functionRows)
        if (!row.name.isEmpty() && name.compare(row.name, Qt::CaseInsensitive) == 0)
            return row.function;
    return std::nullopt;
}

MathSignature signatureOf(MathFunction function)
{
    return rowOf(function).signature;
}

bool takesArguments(MathFunction function, int count)
{
    return count >= rowOf(function).least && count <= rowOf(function).most;
}

double appliedFunction(MathFunction function, const QVector<double> &a)
{
    const double second = a.value(1, 1);
    switch (function) {
    case MathFunction::Calc:
        return a.at(0);
    case MathFunction::Minimum:
        return *std::min_element(a.begin(), a.end());
    case MathFunction::Maximum:
        return *std::max_element(a.begin(), a.end());
    case MathFunction::Clamp:
        return std::max(a.at(0), std::min(a.at(1), a.at(2)));
    case MathFunction::RoundNearest:
    case MathFunction::RoundUp:
    case MathFunction::RoundDown:
    case MathFunction::RoundToZero:
        return roundedTo(function, a.at(0), second);
    case MathFunction::Modulo:
        return a.at(0) - std::floor(a.at(0) / second) * second;
    case MathFunction::Remainder:
        return std::fmod(a.at(0), second);
    case MathFunction::Absolute:
        return std::abs(a.at(0));
    case MathFunction::Hypotenuse:
        return hypotenuse(a);
    case MathFunction::Sign:
        return signOf(a.at(0));
    case MathFunction::SquareRoot:
        return std::sqrt(a.at(0));
    case MathFunction::Power:
        return std::pow(a.at(0), second);
    case MathFunction::Exponential:
        return std::exp(a.at(0));
    case MathFunction::Logarithm:
        return a.size() == 1 ? std::log(a.at(0)) : std::log(a.at(0)) / std::log(second);
    case MathFunction::Sine:
        return std::sin(qDegreesToRadians(a.at(0)));
    case MathFunction::Cosine:
        return std::cos(qDegreesToRadians(a.at(0)));
    case MathFunction::Tangent:
        return std::tan(qDegreesToRadians(a.at(0)));
    case MathFunction::ArcSine:
        return qRadiansToDegrees(std::asin(a.at(0)));
    case MathFunction::ArcCosine:
        return qRadiansToDegrees(std::acos(a.at(0)));
    case MathFunction::ArcTangent:
        return qRadiansToDegrees(std::atan(a.at(0)));
    case MathFunction::ArcTangent2:
        return qRadiansToDegrees(std::atan2(a.at(0), second));
    }
    return qQNaN();
}

} // namespace Svg
