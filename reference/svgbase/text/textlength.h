#pragma once

#include "text/textplacing.h"

namespace Svg {

/// Whether a level has a "textLength".
bool givenLength(const Tree &tree, const TextLevel &level);
/// Stretches the levels with a "textLength" to it, inner ones first (SVG 2 §11.5.4): by space between the
/// characters or by widening them.
bool adjustLengths(const Tree &tree, const TextContent &content, const QSizeF &viewport,
                   QVector<PlacedCluster> *clusters);

} // namespace Svg
