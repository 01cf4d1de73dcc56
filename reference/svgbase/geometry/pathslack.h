#pragma once

#include <QtGui/QPainterPath>

namespace Svg {

/// The same path without room for further elements, when that is worth the copying: a path starts with room for
/// sixteen, and so do all copies of it.
QPainterPath withoutSlack(const QPainterPath &path);

} // namespace Svg
