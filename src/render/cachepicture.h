#pragma once

#include <QtCore/QSizeF>
#include <QtGui/QImage>

/// A transparent ARGB32 picture of that size in whole pixels, each side truncated; a null image for sides below 1,
/// sides that are not finite, and pictures beyond 2^28 pixels (1 GiB).
QImage emptyCachePicture(QSizeF size);

/// The same pixels without the tools that Qt keeps with a picture once it was painted on: about 12 KB, more than a
/// small picture itself takes. A large picture comes back as it is, since copying it would cost more than that.
QImage withoutPaintingTools(const QImage &picture);
