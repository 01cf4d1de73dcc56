#pragma once

#include <QtCore/QString>

namespace shapekit {

/// The UTF-8 text of a resource; empty when there is none of that name.
QString templateText(const QString &resource);

} // namespace shapekit
