#pragma once

#include <framework/framework_global.h>

#include <QtCore/QRectF>
#include <QtCore/QSize>
#include <QtGui/QImage>

class QPainter;

namespace pagehost {

class Page;

/// Paints a page into `target` (the painter's coordinates): background, then the visible objects in stacking order,
/// without handles. In the GUI thread. The page keeps its aspect ratio, is centred in the target and clipped to its
/// rectangle. For pictures without control points use a painter on a QImage.
FRAMEWORK_EXPORT void paintPage(Page *page, QPainter *painter, const QRectF &target);
/// Paints only the background, stretched over `target`.
FRAMEWORK_EXPORT void paintPageBackground(const Page *page, QPainter *painter, const QRectF &target);
/// The page at `scale` pixels per scene unit. A null image when it would have no pixel or more than 2^28.
FRAMEWORK_EXPORT QImage pageImage(Page *page, double scale);

} // namespace pagehost
