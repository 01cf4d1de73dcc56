#pragma once

#include <QtCore/QVector>
#include <QtGui/QPainterPath>

namespace Svg {

/// The same path for a stroke to go along, its given elements drawn back a little: a painter joins the ends of a
/// subpath that ends where it began, which only a closed one has (SVG 2 §13.5.4).
QPainterPath withOpenEnds(const QPainterPath &path, const QVector<int> &ends);

} // namespace Svg
