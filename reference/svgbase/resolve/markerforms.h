#pragma once

#include "properties/computedstyle.h"
#include "tree/tree.h"

#include <QtCore/QRectF>
#include <QtGui/QTransform>

#include <optional>

namespace Svg {

/// The attributes of a marker, settled for an element: the marker at every vertex before it is turned and moved
/// there.
struct MarkerForm
{
    /// The box that the content is fitted into.
    QRectF box;
    /// Its cut, in the units of the box; none where it may overflow.
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

/// Nothing for a marker that shows nothing. `strokeWidth` and `viewport` are of the marked element.
std::optional<MarkerForm> markerForm(const Node &marker, const ComputedStyle &style, double strokeWidth,
                                     const QSizeF &viewport);

} // namespace Svg
