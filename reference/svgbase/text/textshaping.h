#pragma once

#include "text/textcluster.h"
#include "text/textcontent.h"
#include "text/textservices.h"

namespace Svg {

/// Options of shaping a text's characters.
struct ShapingMode
{
    /// Whether each character's glyphs are needed separately.
    bool separate = false;
    /// Whether ideographs are upright on a line that goes down.
    bool vertical = false;
};

/// The glyphs of the characters from `begin` up to `end` on one line, in logical order; the bidirectional algorithm
/// decides their visual positions (Unicode UAX 9).
QVector<TextCluster> shapeChunk(const TextContent &content, int begin, int end, const ShapingMode &mode,
                                const TextServices &services);

} // namespace Svg
