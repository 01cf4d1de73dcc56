#pragma once

#include <QtCore/QPointF>
#include <QtCore/QSizeF>

/// Pure rules of object sizes, item units.
namespace SizeRules {

/// `size` with each side raised to the minimum's, taken in whole units. A minimum that is not finite raises
/// nothing.
QSizeF raised(QSizeF size, QSizeF minimum);

/// `size` brought to the aspect ratio of `ratio`: the largest such size inside it. For the ratio (-1, -1) of an
/// object that was never sized the comparison deliberately turns round: the square over the larger side. A result
/// that would not be finite leaves `size` as it is.
QSizeF withAspect(QSizeF size, QSizeF ratio);

/// Where a creating drag from `start` ends that is released at `pos` (both relative to the object's position), each
/// side at least 30 long.
QPointF releasedEnd(QPointF start, QPointF pos);

} // namespace SizeRules
