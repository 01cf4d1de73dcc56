#pragma once

#include <QtGui/QPainterPath>

namespace Svg {

/// The same path without room for further elements, where it is worth the copying: a path begins with room for
/// sixteen, and so do all copies of it.
QPainterPath withoutSlack(const QPainterPath &path);

} // namespace Svg
