#pragma once

#include <declared/reader/declaration.h>
#include <declared/reader/message.h>

namespace declared {

/// The shape that a drawing becomes, for palettes.
struct DrawingAbout
{
    QString id; ///< that of its file where it is empty
    Texts name;
    QString group; ///< the usual one where it is empty
};

/// Of a drawing that is dropped or pasted.
DrawingAbout droppedDrawing();

/// The declaration of a shape that looks like an SVG drawing without any: it is stretched in the drawing's
/// proportions, and small ones, such as icons, come larger. Where the drawing has one colour fill and lines take
/// those of the user; lines keep their width. Ids that mean something in declarations are renamed. A drawing with
/// declarations is given back as it is. Empty, with a message, for what is no drawing or beyond the limits of
/// files.
QByteArray declarationOfDrawing(const QByteArray &svg, const DrawingAbout &about,
                                QVector<Message> *messages = nullptr);

} // namespace declared
