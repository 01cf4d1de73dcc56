#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace shapetool {

/// A drawing that is to become a shape.
struct Drawing
{
    QString problem; ///< why it can't be used; empty when it can
    QByteArray svg;
};

Drawing readDrawing(const QString &path);

/// A declared shape that shows the drawing: an icon is enlarged to 120 units, the proportions are kept, and the
/// user's pen or fill takes the place of the drawing's colour if it has only one.
QByteArray shapeOfDrawing(const Drawing &drawing, const QString &name, const QString &group);

} // namespace shapetool
