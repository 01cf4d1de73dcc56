#pragma once

#include <QtCore/QRectF>
#include <QtCore/QVector>
#include <QtGui/QImage>

class CBaseObject;

namespace board {

/// What the objects cover, outlines included, scene coordinates.
QRectF paintedArea(const QVector<CBaseObject *> &objects);
/// The objects alone, bottom to top, on nothing, `scale` pixels per scene unit or fewer when the picture would be
/// larger than 4096 pixels in one direction. Null when there is nothing to see.
QImage imageOf(const QVector<CBaseObject *> &objects, double scale);

} // namespace board
