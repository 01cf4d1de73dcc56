#pragma once

#include "grammar/lengths.h"
#include "grammar/pathdata.h"
#include "tree/tree.h"

namespace Svg {

/// Where a marker may stand on an element.
struct MarkerVertex
{
    enum Role { Start, Mid, End };
    Role role = Mid;
    /// User units.
    QPointF place;
    /// Where the outline heads, degrees clockwise from the x axis; halfway between the two directions at a corner.
    double angle = 0;
};

/// The vertices of a line, a polyline, a polygon or a path in their order (SVG 2 §13.7.4); none for other kinds. A
/// single vertex is a start and an end.
QVector<MarkerVertex> markerVertices(const Node &node, const LengthContext &context);
/// The same of segments.
QVector<MarkerVertex> verticesOf(const QVector<PathSegment> &segments);

} // namespace Svg
