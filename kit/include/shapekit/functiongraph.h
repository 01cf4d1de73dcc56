#pragma once

#include <shapekit/shapekit_global.h>

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QVector>

#include <functional>

namespace shapekit {

/// The graph of a function within a window, in the function's own coordinates: its pieces from left to right, each
/// a row of points. A new piece begins where the function has no value, jumps, has a pole, or comes back into the
/// window. Asks the function a limited number of times.
SHAPEKIT_EXPORT QVector<QVector<QPointF>> graphPieces(const std::function<double(double)> &function,
                                                      const QRectF &window);

} // namespace shapekit
