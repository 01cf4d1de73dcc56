#pragma once

#include "resolve/facts.h"
#include "tree/attributes.h"

#include <optional>

namespace Svg {

/// Document-wide styling that replaces a node's own paint. Nodes styled by the same calls share one.
struct StyleOverride : QSharedData
{
    std::optional<QColor> strokeColor;
    std::optional<Qt::PenStyle> strokeStyle;
    std::optional<double> strokeWidth;
    std::optional<QBrush> fill;
};

using StyleOverridePointer = QExplicitlySharedDataPointer<const StyleOverride>;

bool operator==(const StyleOverride &a, const StyleOverride &b);

/// An outline with its pen and fill replaced as far as the override says.
Outline overridden(const Outline &outline, const ComputedStyle &style, const StyleOverride &override);
/// The override that is left after the node itself was given `property`: the later word counts. Null when nothing
/// is.
StyleOverridePointer withoutProperty(const StyleOverridePointer &override, AttributeId property);

} // namespace Svg
