#pragma once

#include "grammar/typedvalue.h"
#include "properties/computedstyle.h"

#include <optional>

namespace Svg {

/// Context that a property's value may refer to.
struct PropertyContext
{
    const ComputedStyle &parent;
    QSizeF viewport;
    /// Whether the value is that of a presentation attribute, whose grammar differs slightly from that of a style
    /// sheet.
    bool isAttribute = false;
};

/// How animation interpolates and adds values of a property.
struct PropertyAnimation
{
    enum Kind : quint8 {
        /// Values are not interpolated.
        Discrete,
        Lengths,
        /// Shorter lists are repeated to match longer ones.
        RepeatedLengths,
        Colors
    };
    Kind kind = Discrete;
    /// Whether negative results count as 0.
    bool positive = false;
    /// The computed value; empty when it cannot be interpolated. Null for a discrete property.
    std::optional<TypedValue> (*value)(const ComputedStyle &style) = nullptr;
    /// Sets a value without text; false, without a change, for one out of range. Null for a discrete property.
    bool (*assign)(ComputedStyle &style, const TypedValue &value, const PropertyContext &context) = nullptr;
};

/// Everything that the library knows about a property. Its name is that of its id, its initial value that of a
/// default-constructed `ComputedStyle`.
struct Property
{
    AttributeId id;
    bool inherited;
    /// Applies text other than the keywords of all properties; false, without a change, when it violates the
    /// grammar.
    bool (*apply)(ComputedStyle &style, QStringView text, const PropertyContext &context);
    void (*copy)(ComputedStyle &style, const ComputedStyle &from);
    /// The computed value as text in the property's grammar; empty where the grammar cannot express it.
    QString (*print)(const ComputedStyle &style);
    PropertyAnimation animation;
    /// Whether there is no presentation attribute of that name (SVG 2 §6.6).
    bool isForStyleOnly = false;
};

} // namespace Svg
