#pragma once

#include <declared/core/shapekind.h>

namespace declared {

/// Warnings about a shape of the default size: points that settle elsewhere than the file has them, a look that
/// isn't the declared one, empty ranges, a drawing that leaves the size, and what goes wrong with its drawing.
/// `file` is what the kind was read from.
QVector<Message> reviewed(const ShapeKind &kind, const QByteArray &file);

} // namespace declared
