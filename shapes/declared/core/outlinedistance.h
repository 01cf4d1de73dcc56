#pragma once

#include <QtGui/QPainterPath>

namespace declared {

/// How far two outlines are apart where they differ most, document units; they may begin elsewhere and run the
/// other way round. Infinite where only one of them is empty.
double outlineDistance(const QPainterPath &a, const QPainterPath &b);

} // namespace declared
