#pragma once

#include "properties/computedstyle.h"
#include "tree/tree.h"

#include <QtCore/QRectF>
#include <QtGui/QTransform>

#include <optional>

namespace Svg {

/// A marker resolved for an element, before it is turned and moved to each vertex.
struct MarkerForm
{
    /// The box that the content is fitted into.
    QRectF box;
    /// Its clip, in the units of the box; none when it may overflow.
    std::optional<QRectF> cut;
    /// From the content's units to those of the box, the reference point at the origin.
    QTransform contentToBox;
    QTransform boxToPlace;
    QSizeF viewport;
    double scale = 1;
    double angle = 0;
    bool turns = false;
    bool turnsBackAtStart = false;
};

/// Empty for a marker that shows nothing. `strokeWidth` and `viewport` are of the marked element.
std::optional<MarkerForm> markerForm(const Node &marker, const ComputedStyle &style, double strokeWidth,
                                     const QSizeF &viewport);

} // namespace Svg
