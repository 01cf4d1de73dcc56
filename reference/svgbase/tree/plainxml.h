#pragma once

#include <QtCore/QString>

namespace Svg {

class TreeBuilder;

/// Reads plain XML, as drawing programs and authors write it, several times faster than Qt's reader and with the
/// same result. False, with an unusable tree, for everything else, well formed or not: entities, CDATA sections,
/// processing instructions and document types, carriage returns, names beyond ASCII, tags with more than 32
/// attributes, and any error; Qt's reader then reports it.
bool readPlainXml(const QString &text, TreeBuilder *builder);

} // namespace Svg
