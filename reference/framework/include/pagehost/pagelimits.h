#pragma once

#include <framework/framework_global.h>

#include <QtCore/QSizeF>

namespace pagehost {

/// Sides of pages, scene units. Others count as damage in files.
constexpr double smallestPageSide = 1;
constexpr double largestPageSide = 100000;

/// False for sizes that are not finite, too.
FRAMEWORK_EXPORT bool isPageSize(const QSizeF &size);

} // namespace pagehost
