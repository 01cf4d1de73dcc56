#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QVector>

namespace line {

/// The axis that a vector follows most, of length 1; to the right for none.
QPointF mainAxis(QPointF way);

/// The corners of a right-angled way, with its ends, that leaves both ends in their directions; (0, 0) for any
/// direction.
QVector<QPointF> angledWay(QPointF start, QPointF startOut, QPointF end, QPointF endOut);

/// Whether a part of the way is inside of the box; it may touch the sides.
bool crosses(const QVector<QPointF> &way, const QRectF &box);
/// The cheapest way, as angledWay() gives it, that crosses none of the boxes; empty where there is none. The
/// directions of the ends are known.
QVector<QPointF> wayAround(const QVector<QRectF> &boxes, QPointF start, QPointF startOut, QPointF end,
                           QPointF endOut);

/// Without points that stand still or go straight on.
QVector<QPointF> simplified(const QVector<QPointF> &points);

/// Cost of a way, of which angledWay() takes the least: bends first, then length.
double costOf(const QVector<QPointF> &way);

} // namespace line
