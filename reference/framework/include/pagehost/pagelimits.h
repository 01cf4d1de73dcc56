#pragma once

#include <framework/framework_global.h>

#include <QtCore/QSizeF>

namespace pagehost {

/// The shortest side of a page, scene units. Shorter ones count as damage in files.
constexpr double smallestPageSide = 1;
/// The longest side of a page, scene units.
constexpr double largestPageSide = 100000;

/// False for sizes that are not finite, too.
FRAMEWORK_EXPORT bool isPageSize(const QSizeF &size);

} // namespace pagehost
