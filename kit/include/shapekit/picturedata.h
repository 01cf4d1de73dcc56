#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSizeF>
#include <QtCore/QStringList>

class QZeSvgTinyDocument;

namespace shapekit {

/// MIME types of pictures that can be shown: SVG first, then the raster formats that the installed Qt reads.
QStringList pictureTypes();
/// The picture as SVG text; a raster picture becomes the image of a document of its size. Empty for a picture that
/// can't be read or is too large.
QByteArray svgOfPicture(const QString &mimeType, const QByteArray &data);
/// The size requested by a document's "width" and "height" (pixels), else by its view box, at most 1000 on the
/// longer side.
QSizeF naturalSizeOf(const QZeSvgTinyDocument &document);

} // namespace shapekit
