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
    /// Whether the value stands in a presentation attribute, whose grammar is not quite that of a style sheet.
    bool isAttribute = false;
};

/// How values of a property are mixed and added by animation.
struct PropertyAnimation
{
    enum Kind : quint8 {
        /// One value replaces the other.
        Discrete,
        Lengths,
        /// Shorter lists are repeated to match longer ones.
        RepeatedLengths,
        Colors
    };
    Kind kind = Discrete;
    /// Whether results below 0 count as 0.
    bool positive = false;
    /// The computed value; nothing where it can only be replaced. Null for a discrete property.
    std::optional<TypedValue> (*value)(const ComputedStyle &style) = nullptr;
    /// Sets a value without a text; false, and no change, for one out of range. Null for a discrete property.
    bool (*assign)(ComputedStyle &style, const TypedValue &value, const PropertyContext &context) = nullptr;
};

/// Everything that the library knows of a property. Its name is that of its id, its initial value that of a fresh
/// `ComputedStyle`.
struct Property
{
    AttributeId id;
    bool inherited;
    /// Applies text other than the keywords of all properties; false, and no change, where it breaks the grammar.
    bool (*apply)(ComputedStyle &style, QStringView text, const PropertyContext &context);
    void (*copy)(ComputedStyle &style, const ComputedStyle &from);
    /// The computed value as text of the property's grammar; empty where that has no word for it.
    QString (*print)(const ComputedStyle &style);
    PropertyAnimation animation;
    /// Whether there is no presentation attribute of that name (SVG 2 §6.6).
    bool isForStyleOnly = false;
};

} // namespace Svg
