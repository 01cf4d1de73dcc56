#pragma once

#include <QtCore/QSizeF>
#include <QtGui/QImage>

/// A transparent ARGB32 picture of that size in whole pixels, each side truncated; a null image for sides below 1,
/// sides that are not finite, and pictures beyond 2^28 pixels (1 GiB).
QImage emptyCachePicture(QSizeF size);
