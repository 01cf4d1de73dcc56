#pragma once

#include "resolve/facts.h"

namespace Svg {

/// The brush that "context-fill" or "context-stroke" gives an element, in its user units; no brush without a
/// context.
QBrush contextBrush(const Facts &facts, Paint::Kind kind, double opacity);
/// What a "use" hands down to what it uses: its own plain colours.
std::shared_ptr<const PaintContext> useContext(const Facts &use);

} // namespace Svg
