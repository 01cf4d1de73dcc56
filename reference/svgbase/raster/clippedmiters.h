#pragma once

#include <QtGui/QPainterPath>
#include <QtGui/QPen>

namespace Svg {

/// What a stroke with joins of `Qt::MiterJoin`, which here stands for "miter-clip", covers beyond one with joins of
/// `Qt::SvgMiterJoin`: corners whose tip would be too long, cut off at the miter limit (SVG 2 §13.5.5). Empty where
/// no corner is. The pieces lie around the corners of `path`, in its units, and wind as the strokes of
/// QPainterPathStroker do.
QPainterPath clippedMiters(const QPainterPath &path, const QPen &pen);

} // namespace Svg
