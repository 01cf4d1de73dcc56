#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace shapetool {

/// A declared shape that shows a drawing.
struct DrawnShape
{
    QString problem; ///< why the drawing can't become a shape; empty when it can
    QByteArray text;
};

/// As the board has a drawing that is dropped on a page. A file of a shape stays as it is.
DrawnShape shapeOfDrawing(const QString &path, const QString &name, const QString &group);

} // namespace shapetool
