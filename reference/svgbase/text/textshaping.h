#pragma once

#include "text/textcluster.h"
#include "text/textcontent.h"
#include "text/textservices.h"

namespace Svg {

/// How the characters of a text are to be shaped.
struct ShapingMode
{
    /// Whether the glyphs of each character are needed apart.
    bool separate = false;
    /// Whether ideographs stand upright on a line that goes down.
    bool vertical = false;
};

/// The glyphs of the characters from `begin` up to `end` on one line, in the order of the characters; the
/// bidirectional algorithm settles where each stands (Unicode UAX 9).
QVector<TextCluster> shapeChunk(const TextContent &content, int begin, int end, const ShapingMode &mode,
                                const TextServices &services);

} // namespace Svg
