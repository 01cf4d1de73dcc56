#pragma once

#include "tree/attributevalue.h"

#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtGui/QColor>

namespace Svg {

/// A value of an animated attribute, taken apart so that there can be something between two of them.
struct AnimatedValue
{
    enum Kind {
        /// Can only be replaced as a whole.
        Text,
        /// Numbers and lengths with their units.
        Numbers,
        /// Red, green, blue and alpha, 0 to 255 and beyond while sums are made.
        Color,
        /// Coordinates of path data, all absolute.
        Path
    };
    Kind kind = Text;
    QVector<double> numbers;
    /// Other properties that must agree: the units, the commands.
    QString form;
    QString text;
};

/// Facts about the animated attribute.
struct ValueContext
{
    enum Grammar { Lengths, Colors, PathData, Transforms, Words };
    Grammar grammar = Lengths;
    TransformFunction::Kind function = TransformFunction::Translate;
    /// Value of "inherit", if it has one.
    std::optional<AnimatedValue> inherited;
    Axis axis = Axis::Diagonal;
    LengthContext lengths;
    QColor currentColor;
    /// Whether a shorter list is repeated to match a longer one, as dashes are.
    bool repeats = false;
    /// Whether numbers below 0 are none.
    bool positive = false;
};

/// The context of the values of an `animateTransform`; unknown types are translations.
ValueContext transformContext(const QString &type);
/// The context that goes with an attribute of that name.
ValueContext valueContext(const QString &attribute, const LengthContext &lengths, const QColor &currentColor);
AnimatedValue parseAnimatedValue(const QString &text, const ValueContext &context);
/// A computed value of a property.
AnimatedValue animatedValue(const TypedValue &value);
/// A value that can only be replaced.
AnimatedValue replacedValue(const QString &text);
/// The value as an attribute holds it.
AttributeValue attributeValue(const AnimatedValue &value, const ValueContext &context);
/// The value as a function of a list of transforms.
TransformFunction transformFunction(const AnimatedValue &value, const ValueContext &context);

/// Brings two values to the same form, lengths of different units to user units. False when there is nothing
/// between the two.
bool makeAlike(AnimatedValue *a, AnimatedValue *b, const ValueContext &context);
/// The sum of two values of the same form, the second one `factor` times.
AnimatedValue sumOf(const AnimatedValue &a, const AnimatedValue &b, double factor);
/// `a` where `share` is 0, `b` where it is 1; both of the same form.
AnimatedValue between(const AnimatedValue &a, const AnimatedValue &b, double share);
/// How far apart two values of the same form are.
double distanceBetween(const AnimatedValue &a, const AnimatedValue &b, const ValueContext &context);
/// A value of the same form that adds nothing.
AnimatedValue zeroOf(const AnimatedValue &value);

} // namespace Svg
