#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

/// Numbers as path data and similar lists write them.
namespace NumberText {

/// Reads a list of numbers at `str`, which must point into zero-terminated text, and leaves `str` on the first
/// character that cannot start one. Empty for a null pointer.
QVector<double> parse(const QChar *&str);

/// The numbers with six significant digits. Only a positive number gets a separator before it: callers must not
/// rely on writing 0 after another number.
QString write(const QVector<double> &numbers);

} // namespace NumberText
