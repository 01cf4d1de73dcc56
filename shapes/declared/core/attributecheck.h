#pragma once

#include <QtCore/QString>

namespace declared {

/// Whether an attribute takes a text: path data, lists of points, numbers and colours; any text of other
/// attributes.
bool isValidAttribute(const QString &name, const QString &text);

} // namespace declared
