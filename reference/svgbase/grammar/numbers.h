#pragma once

#include "grammar/cursor.h"

#include <QtCore/QVector>

#include <optional>

namespace Svg {

/// Reads a number (SVG 1.1 §4.2) and moves the cursor behind it. False, with the cursor unchanged, if there is none
/// or it is too large for a double. A number too small for a double reads as 0.
bool readNumber(Cursor &cursor, double *value);
/// Reads a number after optional white space and a comma; false, with the cursor unchanged, if there is none.
bool readNextNumber(Cursor &cursor, double *value);
/// Text that is one number; ignores white space around it.
std::optional<double> parseNumber(QStringView text);
/// Numbers separated by white space or commas; no value for any other text.
std::optional<QVector<double>> parseNumberList(QStringView text);
/// The shortest text that reads back as the same double.
QString numberText(double value);

} // namespace Svg
