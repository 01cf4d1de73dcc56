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
    /// Own size, user units; judged from the header of a picture.
    QSizeF size;
    /// Part of the content that is fitted into the element, in its own units.
    QRectF box;
    /// Of a document: the window that its percentages are of.
    QSizeF window;
    /// Whether a document says nothing about its size, so that it is as large as the element.
    bool takesSize = false;
    /// PNG, JPEG or GIF; empty for a document.
    QByteArray picture;
    std::shared_ptr<const Prototype> document;
};

using ImagePointer = std::shared_ptr<const ImageContent>;

/// Makes image content of the text of a document, which takes all that settles and draws documents.
class DocumentReader
{
public:
    virtual ~DocumentReader() = default;
    /// Null for a text that is no document; `problem` then says why.
    virtual ImagePointer read(const QByteArray &text, Problem *problem) const = 0;
};

/// A picture where it stands.
struct PlacedPicture
{
    ImagePointer content;
    /// From its pixels to the units around it.
    QTransform place;
};

/// The content of a PNG, JPEG or GIF. Null for anything else, and for what is too large; `problem` then says why.
ImagePointer readPicture(const QByteArray &bytes, Problem *problem);
/// The content of a "data:" URI. Null for every other reference, which is never followed, and for what can't be
/// shown; `problem` then says why.
ImagePointer readImage(const QString &reference, const DocumentReader &documents, Problem *problem);
/// The picture with its pixels; null for a damaged one. Lately decoded ones are kept for the whole process.
QImage decodedPicture(const ImagePointer &content);

} // namespace Svg
