#include "grammar/numbers.h"

#include <QtCore/QByteArray>

#include <charconv>
#include <cmath>

namespace Svg {

namespace {

/// Magnitudes that are more readable without an exponent.
constexpr double smallestPlain = 1e-6;
constexpr double largestPlain = 1e15;

// std::from_chars also accepts "inf" and "nan", which SVG doesn't.
bool startsNumber(const char *at, const char *end)
{
    if (at == end)
        return false;
    if (isDigit(*at))
        return true;
    return *at == '.' && at + 1 != end && isDigit(at[1]);
}

// std::from_chars reports overflow and underflow alike and leaves the value untouched.
bool resolveOutOfRange(const char *begin, const char *end, double *value)
{
    const double attempt = QByteArray(begin, int(end - begin)).toDouble();
    if (attempt != 0)
        return false;
    *value = 0;
    return true;
}

} // namespace

bool readNumber(Cursor &cursor, double *value)
{
    const char *digits = cursor.at;
    const bool negative = digits != cursor.end && *digits == '-';
    if (negative || (digits != cursor.end && *digits == '+'))
        ++digits;
    if (!startsNumber(digits, cursor.end))
        return false;
    double magnitude = 0;
    const auto [rest, error] = std::from_chars(digits, cursor.end, magnitude);
    if (error == std::errc::result_out_of_range && !resolveOutOfRange(digits, rest, &magnitude))
        return false;
    *value = negative ? -magnitude : magnitude;
    cursor.at = rest;
    return true;
}

bool readNextNumber(Cursor &cursor, double *value)
{
    Cursor probe = cursor;
    probe.skipCommaSpace();
    if (!readNumber(probe, value))
        return false;
    cursor = probe;
    return true;
}

std::optional<double> parseNumber(QStringView text)
{
    const Latin1Text bytes(text);
    Cursor cursor = bytes.cursor();
    cursor.skipSpace();
    double value = 0;
    if (!readNumber(cursor, &value))
        return std::nullopt;
    cursor.skipSpace();
    if (!cursor.atEnd())
        return std::nullopt;
    return value;
}

std::optional<QVector<double>> parseNumberList(QStringView text)
{
    const Latin1Text bytes(text);
    Cursor cursor = bytes.cursor();
    QVector<double> numbers;
    cursor.skipSpace();
    double value = 0;
    if (readNumber(cursor, &value)) {
        numbers.append(value);
        while (readNextNumber(cursor, &value))
            numbers.append(value);
    }
    cursor.skipSpace();
    if (!cursor.atEnd())
        return std::nullopt;
    return numbers;
}

QString numberText(double value)
{
    if (value == 0)
        return QStringLiteral("0");
    const double magnitude = std::fabs(value);
    const bool plain = magnitude >= smallestPlain && magnitude < largestPlain;
    char buffer[64];
    const auto format = plain ? std::chars_format::fixed : std::chars_format::general;
    const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value, format);
    Q_ASSERT(error == std::errc());
    return QString::fromLatin1(buffer, int(end - buffer));
}

} // namespace Svg
