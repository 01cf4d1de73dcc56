#include <declared/expressions/value.h>

#include <charconv>

namespace declared {

namespace {

constexpr int numberDigits = 10;
/// Most characters of such a number, sign, point and exponent included.
constexpr int longestNumber = 32;

} // namespace

QString nameOf(Type type)
{
    switch (type) {
    case Type::Point:
        return QStringLiteral("point");
    case Type::Text:
        return QStringLiteral("text");
    case Type::Number:
        break;
    }
    return QStringLiteral("number");
}

Place placeOf(const QString &text, int offset)
{
    const QStringRef before = text.leftRef(offset);
    return {before.count(QLatin1Char('\n')) + 1, offset - before.lastIndexOf(QLatin1Char('\n'))};
}

void appendNumber(QString &text, double number)
{
    char digits[longestNumber];
    // Adding zero turns -0 into 0.
    const auto end =
        std::to_chars(digits, digits + longestNumber, number + 0.0, std::chars_format::general, numberDigits);
    text += QLatin1String(digits, int(end.ptr - digits));
}

QString numberText(double number)
{
    QString text;
    appendNumber(text, number);
    return text;
}

} // namespace declared
