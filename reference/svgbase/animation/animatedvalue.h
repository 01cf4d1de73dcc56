#pragma once

#include "tree/attributevalue.h"

#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtGui/QColor>

namespace Svg {

/// A value of an animated attribute, split so that values can be interpolated.
struct AnimatedValue
{
    enum Kind {
        /// Cannot be interpolated.
        Text,
        /// Numbers and lengths with their units.
        Numbers,
        /// Red, green, blue and alpha, 0 to 255, and beyond in sums.
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
    /// Value of "inherit", if there is one.
    std::optional<AnimatedValue> inherited;
    Axis axis = Axis::Diagonal;
    LengthContext lengths;
    QColor currentColor;
    /// Whether a shorter list is repeated to match a longer one, as dashes are.
    bool repeats = false;
    /// Whether negative numbers are invalid.
    bool positive = false;
};

/// The context of the values of an `animateTransform`; unknown types are translations.
ValueContext transformContext(const QString &type);
/// The context for an attribute of that name.
ValueContext valueContext(const QString &attribute, const LengthContext &lengths, const QColor &currentColor);
AnimatedValue parseAnimatedValue(const QString &text, const ValueContext &context);
/// A computed value of a property.
AnimatedValue animatedValue(const TypedValue &value);
/// A value that cannot be interpolated.
AnimatedValue replacedValue(const QString &text);
/// The value as text of the attribute.
AttributeValue attributeValue(const AnimatedValue &value, const ValueContext &context);
/// The value as a function of a list of transforms.
TransformFunction transformFunction(const AnimatedValue &value, const ValueContext &context);

/// Converts two values to the same form, lengths of different units to user units. False when they cannot be
/// interpolated.
bool makeAlike(AnimatedValue *a, AnimatedValue *b, const ValueContext &context);
/// The sum of two values of the same form, the second one multiplied by `factor`.
AnimatedValue sumOf(const AnimatedValue &a, const AnimatedValue &b, double factor);
/// `a` for a `share` of 0, `b` for 1; both of the same form.
AnimatedValue between(const AnimatedValue &a, const AnimatedValue &b, double share);
/// The distance between two values of the same form.
double distanceBetween(const AnimatedValue &a, const AnimatedValue &b, const ValueContext &context);
/// The zero of a form, which adds nothing.
AnimatedValue zeroOf(const AnimatedValue &value);

} // namespace Svg
