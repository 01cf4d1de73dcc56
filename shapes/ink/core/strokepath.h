#pragma once

#include "ink/core/strokedata.h"

#include <QtCore/QRectF>
#include <QtCore/QString>

class QLineF;

namespace ink {

/// Width of the line under that pressure, in pen widths; 1 where none was measured.
double widthUnder(double pressure);
/// The widest part of a line, in pen widths.
constexpr double largestWidth = 1.6;

/// Around the points and the margin.
QRectF boundsOf(const StrokeData &data);
/// Path data of a smooth curve through all points, to be stroked.
QString linePath(const QVector<StrokePoint> &points);
/// Path data of the area that a pen of that width covers under the pressures of the points, to be filled with the
/// non-zero rule.
QString pressedPath(const QVector<StrokePoint> &points, double width);

/// The distance of two lines, 0 where they cross.
double distanceOf(const QLineF &one, const QLineF &other);
/// Whether the straight lines between the points come that close to a line.
bool touches(const QVector<StrokePoint> &points, const QLineF &line, double distance);
/// The parts of a stroke that are left when everything within `distance` of a line is rubbed out; the whole stroke
/// when that rubs out nothing.
QVector<QVector<StrokePoint>> partsBeside(const QVector<StrokePoint> &points, const QLineF &line, double distance);

} // namespace ink
