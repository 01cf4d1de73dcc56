#pragma once

#include <shapekit/shapekit_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QSizeF>
#include <QtCore/QStringList>

class QZeSvgTinyDocument;

namespace shapekit {

/// MIME types of pictures that can be shown: SVG first, then the raster formats that the installed Qt reads.
SHAPEKIT_EXPORT QStringList pictureTypes();
/// The picture as SVG text; a raster picture becomes the image of a document of its size. Empty for a picture that
/// can't be read or is too large.
SHAPEKIT_EXPORT QByteArray svgOfPicture(const QString &mimeType, const QByteArray &data);
/// The size requested by a document's "width" and "height" (pixels), else by its view box, at most 1000 on the
/// longer side.
SHAPEKIT_EXPORT QSizeF naturalSizeOf(const QZeSvgTinyDocument &document);

} // namespace shapekit
