#pragma once

#include <QtCore/QLatin1String>
#include <QtCore/QVector>

#include <optional>

namespace Svg {

enum class MathFunction {
    Calc,
    Minimum,
    Maximum,
    Clamp,
    RoundNearest,
    RoundUp,
    RoundDown,
    RoundToZero,
    Modulo,
    Remainder,
    Absolute,
    Hypotenuse,
    Sign,
    SquareRoot,
    Power,
    Exponential,
    Logarithm,
    Sine,
    Cosine,
    Tangent,
    ArcSine,
    ArcCosine,
    ArcTangent,
    ArcTangent2
};

/// Kinds of the arguments and the result of a function.
enum class MathSignature {
    /// Arguments of one kind, which is that of the result.
    SameKind,
    /// Arguments of one kind; the result is a plain number.
    NumberOfAny,
    Numbers,
    /// Of an angle, in degrees, or a number, in radians.
    NumberOfAngle,
    AngleOfNumber,
    AngleOfAny
};

/// No value for an unknown name.
std::optional<MathFunction> mathFunction(QLatin1String name);
MathSignature signatureOf(MathFunction function);
bool takesArguments(MathFunction function, int count);
/// The value of a function (CSS Values 4 §10.3 to §10.7); angles in degrees.
double appliedFunction(MathFunction function, const QVector<double> &arguments);

} // namespace Svg
