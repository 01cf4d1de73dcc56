#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace shapetool {

/// Writes a whole new file. The reason if it could not be written, or is there already; else empty.
QString writeNewFile(const QString &path, const QByteArray &bytes);
/// Whether a shape may have that name: a letter, then letters and digits.
bool isShapeName(const QString &name);

} // namespace shapetool
