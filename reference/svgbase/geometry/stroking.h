#pragma once

#include "geometry/polyline.h"

#include <QtGui/QPen>
#include <QtGui/QTransform>

namespace Svg {

/// The area of a stroke as closed polygons, to be filled by the winding rule.
struct StrokeOutline
{
    std::vector<QPointF> points;
    /// Behind the last point of each polygon.
    std::vector<int> ends;
};

/// Outlines what a pen covers along a path, both in units that `toPainter` maps to those of the outline and of the
/// flattening. Joins of `Qt::MiterJoin` beyond the limit are cut off there (SVG 2 §13.5.5). False, the outline then
/// being of no use, where it has too many points.
bool outlineStroke(const QPainterPath &path, const QPen &pen, const QTransform &toPainter,
                   const Flattening &flattening, StrokeOutline *outline);

} // namespace Svg
