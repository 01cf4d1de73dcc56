#pragma once

#include "text/textoutlines.h"
#include "text/textplacing.h"

namespace Svg {

/// The outlines of placed characters and of the lines that decorate them, in painting order.
TextOutlines paintedText(const TextContent &content, QVector<PlacedCluster> clusters);

} // namespace Svg
