#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>

/// The longest side of an object, item units. Objects keep a picture with a pixel to the unit for other threads: a
/// square of this side takes 1 GiB.
constexpr double longestSide = 16384;
/// `size` with each side brought into 0 to longestSide.
QSizeF possibleSize(const QSizeF &size);
/// Degrees brought into 0 to 360, 360 excluded.
double normalizedDegrees(double degrees);
/// A vector of item coordinates as the item's rotation turns it.
QPointF rotated(const QPointF &vector, double degrees);
bool isFinite(const QPointF &point);
bool isFinite(const QSizeF &size);
bool isFinite(const QRectF &rect);
