#pragma once

#include <QtCore/QSize>
#include <QtGui/QImage>

/// The size in whole pixels, each side truncated; an invalid one for sides below 1, sides that are not finite, and
/// sides beyond the range of int.
QSize cachePictureSize(QSizeF size);

/// A transparent ARGB32 picture of cachePictureSize(); a null image where QImage makes none of that size. It takes
/// over the memory of `previous`, where that is such a picture and nobody else holds it: while something is dragged
/// or moves, one of the same size follows the other.
QImage emptyCachePicture(QSizeF size, QImage previous = QImage());

/// The same pixels without the tools that Qt keeps with a picture once it was painted on: about 12 KB, more than a
/// small picture itself takes. A large picture comes back as it is, since copying it would cost more than that.
QImage withoutPaintingTools(const QImage &picture);
