#pragma once

#include <QtCore/QString>

namespace board {

/// A path beside `file` that nothing has yet: the file's name without the format's suffix put into `pattern` ("%1
/// (copy)"), and a number behind it where that is taken.
QString freeNameBeside(const QString &file, const QString &pattern);

/// The two suffixes of documents without the dot.
extern const QString binarySuffix;
extern const QString jsonSuffix;
/// With the dot; empty for a name that ends in neither.
QString formatSuffixOf(const QString &file);

} // namespace board
