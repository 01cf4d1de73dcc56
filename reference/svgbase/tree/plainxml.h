#pragma once

#include <QtCore/QString>

namespace Svg {

class TreeBuilder;

/// Reads XML of the plain kind that drawing programs and authors write, several times faster than Qt's reader, and
/// tells the builder the same. False, the builder's tree then being of no use, for everything else, well formed or
/// not: entities, sections of character data, processing instructions and document types, carriage returns, names
/// beyond ASCII, tags with more than 32 attributes, and whatever has an error; what is wrong is left to Qt's reader
/// to say.
bool readPlainXml(const QString &text, TreeBuilder *builder);

} // namespace Svg
