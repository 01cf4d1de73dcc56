#pragma once

#include <declared/expressions/value.h>

#include <QtCore/QStringList>

namespace declared {

/// Works a value out; there are as many arguments, and of such types, as the function was found for.
using BuiltinBody = Value (*)(const Value *arguments, int count);

/// A function that every file may use.
struct Builtin
{
    const char *name;
    const char *parameters; ///< a letter each: n number, p point, t text; "+" repeats the last one
    Type result;
    BuiltinBody body;

    bool takes(const QVector<Type> &arguments) const;
};

/// All functions; one name may stand for several with different parameters.
const QVector<Builtin> &builtins();
QStringList builtinNames();
/// The index of the function that takes such arguments: -1 for none.
int findBuiltin(const QString &name, const QVector<Type> &arguments);

/// Whole circles and right angles give exact results. Degrees.
double sineOf(double degrees);
double cosineOf(double degrees);
/// The nearest whole number, halves away from zero.
double wholeOf(double number);
/// The remainder of a division, with the divisor's sign.
double remainderOf(double number, double divisor);
/// The text of a number with at most that many digits after the point.
Value digitsText(double number, double digits);

} // namespace declared
