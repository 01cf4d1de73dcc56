#pragma once

#include <shapekit/shapekit_global.h>

#include <QtCore/QStringList>

namespace shapekit {

/// The name among `names` that was most likely meant by `name`; empty when none is near.
SHAPEKIT_EXPORT QString nearestName(const QString &name, const QStringList &names);
/// " (did you mean \"...\"?)", or nothing.
SHAPEKIT_EXPORT QString suggestion(const QString &name, const QStringList &names);

} // namespace shapekit
