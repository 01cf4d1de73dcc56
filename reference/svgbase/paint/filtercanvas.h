#pragma once

#include <QtCore/QRect>
#include <QtGui/QTransform>

#include <optional>

namespace Svg {

struct Filter;

/// Where the pixels of a filter lie whose axes are not those of the painter: along the axes of the filtered
/// element, as many of them as the painter has (Filter Effects 1 §5, "user coordinate system").
struct FilterCanvas
{
    QTransform fromPainter;
    QTransform toPainter;
    /// The part that the filter may need; null for everything.
    QRectF needed;
};

/// The canvas of a filter that makes a difference between the axes of its element while these are turned or skewed;
/// nothing for a filter that works on the painter's own pixels as well.
std::optional<FilterCanvas> filterCanvas(const Filter &filter, const QTransform &toPainter);

} // namespace Svg
