#pragma once

#include <QtCore/QByteArray>

namespace declared {

/// The declaration of a shape that looks like an SVG drawing without any: it is stretched in the drawing's
/// proportions, and small ones, such as icons, come larger. Pen and fill are the user's where the drawing has one
/// colour. A drawing with declarations is given back as it is. Empty for what is no drawing or beyond the limits of
/// files.
QByteArray declarationOfDrawing(const QByteArray &svg);

} // namespace declared
