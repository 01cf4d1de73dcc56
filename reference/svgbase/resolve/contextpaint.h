#pragma once

#include "resolve/facts.h"

namespace Svg {

/// The paint that `kind` takes from the element that shows this one; null for other kinds and without a context.
const ContextPaint *contextPaint(const Facts &facts, Paint::Kind kind);
/// From the units of the element that a context's paint belongs to.
QTransform fromContext(const ContextPaint &paint, const Facts &facts);
/// The brush of "context-fill" or "context-stroke" for an element, in its user units; no brush without a context.
QBrush contextBrush(const Facts &facts, Paint::Kind kind, double opacity);
/// A brush made for an opacity, without that opacity: the paint of a context is that of the property alone (SVG 2
/// §13.2). An invisible one stays as it is.
QBrush unfadedBrush(const QBrush &brush, double opacity);
/// A paint of an element for its markers and used content: the element's own, or that of its own context.
ContextPaint handedDown(const Facts &facts, Paint::Kind kind, const QBrush &brush, int pattern);
/// The context paints of a "use" for its content: its own plain colours.
std::shared_ptr<const PaintContext> useContext(const Facts &use);

} // namespace Svg
