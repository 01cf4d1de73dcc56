#pragma once

#include <QtGui/QColor>
#include <QtGui/QCursor>

namespace ink {

/// A disc of that diameter (pixels) as the tip of a tool; a ring for an invalid colour.
QCursor tipCursor(const QColor &color, double diameter);

} // namespace ink
