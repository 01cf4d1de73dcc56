#pragma once

#include <QtCore/QRectF>
#include <QtCore/QVector>
#include <QtGui/QImage>

class CBaseObject;

namespace board {

struct ObjectsImage
{
    QImage image; ///< null when there is nothing to see
    QRectF area;  ///< what it shows, scene coordinates
};

/// The objects alone, bottom to top, on nothing, cut to what is painted; `scale` pixels per scene unit, or fewer
/// when the picture would be larger than 4096 pixels in one direction.
ObjectsImage imageOf(const QVector<CBaseObject *> &objects, double scale);

} // namespace board
