#pragma once

#include "grammar/lengths.h"
#include "properties/computedstyle.h"
#include "tree/attributes.h"

namespace Svg {

/// What a property's value may refer to.
struct PropertyContext
{
    const ComputedStyle &parent;
    QSizeF viewport;
    /// Whether the value stands in a presentation attribute, whose grammar is not quite that of a style sheet.
    bool isAttribute = false;
};

/// Applies one property to a style. A value that its grammar does not accept changes nothing and gives false.
bool applyProperty(ComputedStyle &style, AttributeId property, QStringView value, const PropertyContext &context);

/// Whether a value of "stroke-dasharray" has more entries than the limit.
bool hasTooManyDashes(QStringView list);

} // namespace Svg
