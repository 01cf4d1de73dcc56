#pragma once

#include "resolve/filterprimitive.h"

#include <QtGui/QPainter>

namespace Svg {

/// Whether painters know a mode.
bool isForPainters(BlendMode mode);
/// The painter's name for a mode; plain painting for those that painters do not know.
QPainter::CompositionMode compositionMode(BlendMode mode);
/// The same for operators, "arithmetic" being the one that painters do not know.
QPainter::CompositionMode compositionMode(CompositeOperator op);

} // namespace Svg
