#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSizeF>
#include <QtCore/QString>

class QXmlStreamWriter;

namespace board {

/// Writes the SVG document `source` as a nested element of `size` (user units of the place where it stands). Every
/// id of it, and every reference to one, gets `prefix`, so that documents don't meet in their names. A document
/// with a style sheet, whose rules would reach its neighbours, is written as a picture that holds it. False, with
/// nothing written, for text that is no SVG document.
bool writeSvgFragment(QXmlStreamWriter &out, const QByteArray &source, const QSizeF &size, const QString &prefix);

} // namespace board
