#pragma once

#include "tree/message.h"

#include <QtCore/QByteArray>
#include <QtGui/QImage>
#include <QtGui/QTransform>

#include <memory>

namespace Svg {

class Prototype;

/// Content of an "image" element: a picture, not decoded yet, or another document. Immutable.
struct ImageContent
{
    /// Intrinsic size, user units, from the header of a picture.
    QSizeF size;
    /// Part of the content that is fitted into the element, in its own units.
    QRectF box;
    /// Of a document: the window that its percentages refer to.
    QSizeF window;
    /// Whether a document has no size of its own, so that it is as large as the element.
    bool takesSize = false;
    /// PNG, JPEG or GIF; empty for a document.
    QByteArray picture;
    std::shared_ptr<const Prototype> document;
};

using ImagePointer = std::shared_ptr<const ImageContent>;

/// Makes image content of a document's text, which needs everything that resolves and draws documents.
class DocumentReader
{
public:
    virtual ~DocumentReader() = default;
    /// Null for a text that is not a document; `problem` then says why.
    virtual ImagePointer read(const QByteArray &text, Problem *problem) const = 0;
};

/// A picture at its place.
struct PlacedPicture
{
    ImagePointer content;
    /// From its pixels to the units around it.
    QTransform place;
};

/// The content of a PNG, JPEG or GIF. Null for anything else, and for what is too large; `problem` then says why.
ImagePointer readPicture(const QByteArray &bytes, Problem *problem);
/// The content of a "data:" URI. Null for every other reference, which is never followed, and for content that
/// can't be shown; `problem` then says why.
ImagePointer readImage(const QString &reference, const DocumentReader &documents, Problem *problem);
/// The decoded picture; null for a damaged one. Recently decoded ones are kept for the whole process.
QImage decodedPicture(const ImagePointer &content);

} // namespace Svg
