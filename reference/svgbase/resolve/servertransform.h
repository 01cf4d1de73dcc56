#pragma once

#include "grammar/lengths.h"
#include "properties/computedstyle.h"
#include "tree/tree.h"

#include <QtCore/QRectF>
#include <QtGui/QTransform>

namespace Svg {

/// The property "transform" of a gradient or a pattern, whose attributes have other names (SVG 2 §14.2.2, §14.3.1),
/// and its origin. Empty when unset.
struct ServerTransform
{
    AttributeValue transform;
    QString origin;
};

/// The element's own transform; `own` is its "gradientTransform" or "patternTransform".
ServerTransform serverTransform(const Node &node, const ComputedStyle &style, const AttributeValue &own);

/// The transform in the units of the server; identity when its text is invalid. Percentages, and the origin, are
/// relative to `box` (CSS Transforms 1, "transform-box").
QTransform resolved(const ServerTransform &transform, const QRectF &box, double fontSize);

} // namespace Svg
