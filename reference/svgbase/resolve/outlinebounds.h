#pragma once

#include "resolve/facts.h"

namespace Svg {

/// Bounds of an outline without its stroke, document units. Without rotation they are those of the geometry, which
/// is known even where nothing is drawn.
QRectF mappedBounds(const Facts &facts, const QPainterPath &path);
/// Bounds of all outlines together, mapped. Null without any.
QRectF mappedBounds(const QTransform &toDocument, const QVector<Outline> &outlines);

} // namespace Svg
