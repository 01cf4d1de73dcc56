#pragma once

#include <QtCore/QString>

class QPointF;
class QRectF;
class QSizeF;

namespace support {

/// @name Text with all digits of a double
/// QCOMPARE compares doubles, points, sizes and rectangles with a tolerance. Results that are specified to the last
/// bit are compared as `QCOMPARE(exact(actual), exact(expected))`, which also prints both in full.
/// @{
QString exact(double value);
QString exact(const QPointF &point);
QString exact(const QSizeF &size);
QString exact(const QRectF &rect);
/// @}

} // namespace support
