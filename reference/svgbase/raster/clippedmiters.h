#pragma once

#include <QtGui/QPainterPath>
#include <QtGui/QPen>

namespace Svg {

/// The area of a stroke with joins of `Qt::MiterJoin`, which here means "miter-clip", beyond that of
/// `Qt::SvgMiterJoin`: corners with too long tips, cut off at the miter limit (SVG 2 §13.5.5). Empty without such
/// corners. The pieces lie around the corners of `path`, in its units, with the winding of QPainterPathStroker.
QPainterPath clippedMiters(const QPainterPath &path, const QPen &pen);

} // namespace Svg
