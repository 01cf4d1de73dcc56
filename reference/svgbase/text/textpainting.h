#pragma once

#include "text/textoutlines.h"
#include "text/textplacing.h"

namespace Svg {

/// The outlines of positioned characters and their decoration lines, in painting order.
TextOutlines paintedText(const TextContent &content, QVector<PlacedCluster> clusters);

} // namespace Svg
