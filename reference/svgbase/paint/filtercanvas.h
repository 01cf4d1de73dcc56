#pragma once

#include <QtCore/QRect>
#include <QtGui/QTransform>

#include <optional>

namespace Svg {

struct Filter;

/// Placement of a filter's pixels when its axes differ from those of the painter: along the axes of the filtered
/// element, at the painter's resolution (Filter Effects 1 §5, "user coordinate system").
struct FilterCanvas
{
    QTransform fromPainter;
    QTransform toPainter;
    /// The part that the filter may need; null for everything.
    QRectF needed;
};

/// The canvas of a filter that treats the axes of its element differently while these are turned or skewed; empty
/// for a filter that can use the painter's own pixels.
std::optional<FilterCanvas> filterCanvas(const Filter &filter, const QTransform &toPainter);

} // namespace Svg
