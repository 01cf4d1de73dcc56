#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSizeF>
#include <QtCore/QStringList>

class QZeSvgTinyDocument;

namespace shapekit {

/// MIME types of pictures that can be shown: SVG first, then what this machine reads of pixels.
QStringList pictureTypes();
/// The picture as SVG text; one of pixels becomes the image of a document as large as it is. Empty for a picture
/// that cannot be read or is too large.
QByteArray svgOfPicture(const QString &mimeType, const QByteArray &data);
/// The size that a document asks for by its "width" and "height" (pixels), else by its view box, at most 1000 on
/// the longer side.
QSizeF naturalSizeOf(const QZeSvgTinyDocument &document);

} // namespace shapekit
