#pragma once

#include "resolve/facts.h"

namespace Svg {

/// Bounds of an outline without its stroke, document units. The box of the geometry counts where nothing is turned,
/// since it is known even of what draws nothing.
QRectF mappedBounds(const Facts &facts, const QPainterPath &path);
/// Bounds of all outlines together, mapped. Null without any.
QRectF mappedBounds(const QTransform &toDocument, const QVector<Outline> &outlines);

} // namespace Svg
