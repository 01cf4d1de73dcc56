#pragma once

#include "resolve/filterprimitive.h"

#include <QtGui/QPainter>

namespace Svg {

/// Whether painters support a mode.
bool isForPainters(BlendMode mode);
/// The painter's name for a mode; plain painting for unsupported ones.
QPainter::CompositionMode compositionMode(BlendMode mode);
/// The same for operators; painters do not support "arithmetic".
QPainter::CompositionMode compositionMode(CompositeOperator op);

} // namespace Svg
