#pragma once

#include "resolve/facts.h"

namespace Svg {

/// The brush that "context-fill" or "context-stroke" gives an element, in its user units; no brush without a
/// context.
QBrush contextBrush(const Facts &facts, Paint::Kind kind, double opacity);
/// A brush that was made for an opacity as it is without it: the paint of a context is that of the property alone
/// (SVG 2 §13.2). One that can't be seen stays as it is.
QBrush unfadedBrush(const QBrush &brush, double opacity);
/// What a "use" hands down to what it uses: its own plain colours.
std::shared_ptr<const PaintContext> useContext(const Facts &use);

} // namespace Svg
