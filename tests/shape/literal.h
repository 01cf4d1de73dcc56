#pragma once

#include <QtCore/QString>

#include <vector>

/// The text operations of shapes once more: written straight from their rules, step by step and character by
/// character, slow, and sharing nothing with the library. The library's own operations are compared with these.
namespace literal {

/// Reads a number at index `at` of the text, which ends with a character that matches nothing, and leaves `at` on
/// the first character that is no part of it.
double toDouble(const QString &text, int &at);
/// Reads a list of numbers; leaves `at` on the first character that cannot start one.
std::vector<double> parseNumbersList(const QString &text, int &at);
QString numbersToString(const std::vector<double> &numbers);

QString changePathBeginPoint(const QString &path, double dx, double dy);
QString changePathWidth(const QString &path, double delta);
QString changePathHeight(const QString &path, double delta);
/// Call themselves once per piece and copy the path each time: not for long paths.
/// @{
QString changePathWidth(const QString &path, double delta, int from);
QString changePathHeight(const QString &path, double delta, int from);
/// @}

} // namespace literal
