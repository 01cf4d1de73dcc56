#pragma once

#include <QtCore/QPointF>
#include <QtCore/QSizeF>

/// Rules of object sizes as pure functions, item units.
namespace SizeRules {

/// `size` with each side raised to the minimum's, taken in whole units. A minimum that is not finite raises
/// nothing.
QSizeF raised(QSizeF size, QSizeF minimum);

/// The largest size of the aspect ratio of `ratio` that fits into `size`. For the ratio (-1, -1) of an object that
/// was never sized the comparison is deliberately inverted: the square over the larger side. Returns `size` where
/// the result would not be finite.
QSizeF withAspect(QSizeF size, QSizeF ratio);

/// The end of a creating drag from `start` that is released at `pos` (both relative to the object's position), each
/// side at least 30 long.
QPointF releasedEnd(QPointF start, QPointF pos);

} // namespace SizeRules
