#pragma once

#include <QtCore/QPointF>

class QZeSvgNode;

/// A control point is hit within this distance of its bounding rectangle: document units on every side, edges
/// included, at any zoom.
constexpr double hitMargin = 6.0;

/// Whether a visible control point is hit at `pos` (document units). False for a rectangle with NaN.
bool isControlPointHit(const QZeSvgNode &node, QPointF pos);

/// Clamps `value` to the range. The minimum is tested first, even if above the maximum, and is the result for NaN.
/// With a minimum of NaN every value becomes the maximum.
double limited(double value, double minimum, double maximum);
