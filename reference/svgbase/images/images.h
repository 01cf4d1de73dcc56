#pragma once

#include "geometry/shapegeometry.h"
#include "grammar/viewboxes.h"

#include <QtCore/QByteArray>
#include <QtGui/QImage>

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
ImagePointer readImage(const QString &reference, Problem *problem);
/// The picture with its pixels; null for a damaged one. Lately decoded ones are kept for the whole process.
QImage decodedPicture(const ImagePointer &content);

/// Fits the content into a box; one without a size of its own is not scaled (SVG 2 §12.3).
QTransform contentFit(const ImageContent &content, const QRectF &box, const AspectRatio &ratio);

/// Where an "image" element shows its content.
struct ImagePlacement
{
    /// The box of the element, user units; empty when nothing is shown.
    QRectF box;
    /// Maps the content's box into it.
    QTransform fit;
};

/// Sizes that are absent or "auto" follow from the content (SVG 2 §7.8, §7.9).
ImagePlacement imagePlacement(const Node &node, const LengthReader &lengths, const ImageContent *content);

} // namespace Svg
