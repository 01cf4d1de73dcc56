#pragma once

#include <QtCore/QSize>
#include <QtGui/QImage>

/// The size in whole pixels, each side truncated; an invalid one for sides below 1, sides that are not finite, and
/// sides beyond the range of int.
QSize cachePictureSize(QSizeF size);

/// A transparent ARGB32 picture of cachePictureSize(); a null image where QImage can't create one of that size.
/// Reuses the memory of `previous` if that is such a picture and nobody else holds it: during a drag or an
/// animation, pictures of the same size follow each other.
QImage emptyCachePicture(QSizeF size, QImage previous = QImage());

/// The same pixels without the paint engine that Qt keeps with a picture after painting on it: about 12 KB, more
/// than the pixels of a small picture. Returns a large picture unchanged, since copying it would cost more.
QImage withoutPaintingTools(const QImage &picture);
