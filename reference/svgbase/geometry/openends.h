#pragma once

#include <QtCore/QVector>
#include <QtGui/QPainterPath>

namespace Svg {

/// The same path for stroking, with the given elements drawn back a little: a painter joins the ends of a subpath
/// that ends where it began, which only a closed subpath does (SVG 2 §13.5.4).
QPainterPath withOpenEnds(const QPainterPath &path, const QVector<int> &ends);

} // namespace Svg
