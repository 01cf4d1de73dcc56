#pragma once

#include "scene/filter.h"

namespace Svg {

/// Largest distance of a pixel of the result from pixels that it depends on, units of the filtered element, which
/// `toPainter` maps.
QSizeF filterReach(const Filter &filter, const QTransform &toPainter);
/// The painter's area that the result may cover, where the element covers `content`.
QRectF filteredBounds(const Filter &filter, const QTransform &toPainter, const QRectF &content);

} // namespace Svg
