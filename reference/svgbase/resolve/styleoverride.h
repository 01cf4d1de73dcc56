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

/// An outline with its pen and fill replaced as far as the override sets them.
Outline overridden(const Outline &outline, const ComputedStyle &style, const StyleOverride &override);
/// The remaining override after the node itself was given `property`: the later value wins. Null when nothing
/// remains.
StyleOverridePointer withoutProperty(const StyleOverridePointer &override, AttributeId property);

} // namespace Svg
