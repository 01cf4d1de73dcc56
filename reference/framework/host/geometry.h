#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>

/// The longest side of an object, item units. Objects keep a picture with one pixel per unit for other threads; a
/// square of this side takes 1 GiB.
constexpr double longestSide = 16384;
/// `size` with each side limited to 0 to longestSide.
QSizeF possibleSize(const QSizeF &size);
/// Degrees normalised to 0 to 360, 360 excluded.
double normalizedDegrees(double degrees);
/// A vector in item coordinates, turned by the item's rotation.
QPointF rotated(const QPointF &vector, double degrees);
bool isFinite(const QPointF &point);
bool isFinite(const QSizeF &size);
bool isFinite(const QRectF &rect);
