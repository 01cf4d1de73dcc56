#pragma once

#include "grammar/lengths.h"
#include "grammar/pathdata.h"
#include "tree/tree.h"

namespace Svg {

/// A possible place of a marker on an element.
struct MarkerVertex
{
    enum Role { Start, Mid, End };
    Role role = Mid;
    /// User units.
    QPointF place;
    /// Direction of the outline, degrees clockwise from the x axis; the bisector of both directions at a corner.
    double angle = 0;
};

/// The vertices of a line, a polyline, a polygon or a path in order (SVG 2 §13.7.4); none for other kinds. A single
/// vertex is both start and end.
QVector<MarkerVertex> markerVertices(const Node &node, const LengthContext &context);
/// The same for segments.
QVector<MarkerVertex> verticesOf(const QVector<PathSegment> &segments);

} // namespace Svg
