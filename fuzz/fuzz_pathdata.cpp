// Path data and points: coordinates stay in range, positions of errors lie within the text.

#include "grammarinput.h"

#include "geometry/markervertices.h"
#include "grammar/inputlimits.h"
#include "grammar/pathdata.h"
#include "grammar/points.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QString text = fuzzedText(data, size);
    QVector<Svg::PathSegment> segments;
    const Svg::PathData read = Svg::parsePathData(text, &segments);
    require(read.errorAt >= -1 && read.errorAt <= text.size(), "an error stands inside the text");
    require(read.path == Svg::parsePathData(text).path, "segments do not change the path");
    for (const Svg::PathSegment &segment : qAsConst(segments))
        require(qAbs(segment.to.x()) <= Svg::Limits::coordinate && qAbs(segment.to.y()) <= Svg::Limits::coordinate,
                "a segment ends in range");
    const QVector<Svg::MarkerVertex> vertices = Svg::verticesOf(segments);
    require(vertices.isEmpty() == segments.isEmpty(), "segments have vertices");
    for (const Svg::MarkerVertex &vertex : vertices)
        require(qAbs(vertex.angle) <= 360, "a direction is within a turn");
    Svg::parsePoints(text);
    return 0;
}
