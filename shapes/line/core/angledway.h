#pragma once

#include <QtCore/QPointF>
#include <QtCore/QVector>

namespace line {

/// The axis that a vector follows most, of length 1; to the right for none.
QPointF mainAxis(QPointF way);

/// The corners of a right-angled way, with its ends, that leaves both ends in their directions; (0, 0) for any
/// direction.
QVector<QPointF> angledWay(QPointF start, QPointF startOut, QPointF end, QPointF endOut);

/// Cost of a way, of which angledWay() takes the least: bends first, then length.
double costOf(const QVector<QPointF> &way);

} // namespace line
