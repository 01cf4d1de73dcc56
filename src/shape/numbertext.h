#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

/// Number lists as in path data.
namespace NumberText {

/// Reads a list of numbers at `str`, which must point into zero-terminated text, and leaves `str` on the first
/// character that cannot start one. Empty for a null pointer.
QVector<double> parse(const QChar *&str);

/// Writes the number with six significant digits.
QString write(double number);

/// Writes the numbers with six significant digits. Only a positive number gets a separator before it: callers must
/// not write 0 after another number.
QString write(const QVector<double> &numbers);

} // namespace NumberText
