#pragma once

#include <QtCore/QPointF>

class QZeSvgNode;

/// A control point is hit within this distance of its bounding rectangle: document units on every side, edges
/// included, at any zoom.
constexpr double hitMargin = 6.0;

/// Whether a visible control point is hit at `pos` (document units). A rectangle that is not a number never is.
bool isControlPointHit(const QZeSvgNode &node, QPointF pos);

/// `value` brought into the range. The minimum is tested first, also where it lies above the maximum, and is what a
/// value that is not a number becomes. Under a minimum that is not a number every value becomes the maximum.
double limited(double value, double minimum, double maximum);
