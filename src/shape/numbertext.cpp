#include "shape/numbertext.h"

#include <svgobj/csvgbase.h>

#include "shape/constants.h"

#include <array>
#include <charconv>
#include <system_error>

namespace {

constexpr int maxNumberCharacters = 255;
/// Shorter texts without an exponent are converted by hand, exactly; all others by the locale-free
/// std::from_chars().
constexpr int handConversionLimit = 10;
constexpr int expectedNumbers = 32;

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

/// The characters of one number, copied from the text as they are read.
class NumberBuffer
{
public:
    bool isFull() const { return m_size == maxNumberCharacters; }
    void append(char c) { m_text[size_t(m_size++)] = c; }
    int size() const { return m_size; }
    /// Zero-terminated.
    const char *text()
    {
        m_text[size_t(m_size)] = '\0';
        return m_text.data();
    }

    void copyDigits(const QChar *&str)
    {
        while (!isFull() && isDigit(*str))
            append(char((str++)->unicode()));
    }
    bool copyIf(const QChar *&str, char wanted, char alternative)
    {
        if (isFull() || (*str != QLatin1Char(wanted) && *str != QLatin1Char(alternative)))
            return false;
        append(char((str++)->unicode()));
        return true;
    }

private:
    std::array<char, maxNumberCharacters + 1> m_text; // initialised only as far as used: most numbers are short
    int m_size = 0;
};

double convertByHand(const char *text)
{
    const bool negative = *text == '-';
    if (negative)
        ++text;
    int digits = 0;
    double divisor = 1;
    for (; *text && *text != '.'; ++text)
        digits = digits * 10 + (*text - '0');
    if (*text == '.') {
        for (++text; *text; ++text) {
            digits = digits * 10 + (*text - '0');
            divisor *= 10;
        }
    }
    const double value = digits / divisor;
    return negative ? -value : value;
}

/// Converts the longest prefix that is a number; 0 when there is none. Out of range: infinite or 0.
double convertPrefix(const char *text, int size)
{
    double value = 0;
    const std::from_chars_result result = std::from_chars(text, text + size, value);
    if (result.ec != std::errc::result_out_of_range)
        return value;
    return QByteArray(text, int(result.ptr - text)).toDouble(); // distinguishes overflow from underflow
}

} // namespace

double toDouble(const QChar *&str)
{
    if (!str)
        return 0;
    NumberBuffer buffer;
    if (!buffer.copyIf(str, '-', '-') && *str == QLatin1Char('+'))
        ++str;
    buffer.copyDigits(str);
    if (buffer.copyIf(str, '.', '.'))
        buffer.copyDigits(str);
    bool hasExponent = false;
    if (!buffer.isFull() && (*str == QLatin1Char('e') || *str == QLatin1Char('E'))) {
        hasExponent = true;
        buffer.append('e');
        ++str;
        buffer.copyIf(str, '+', '-');
        buffer.copyDigits(str);
    }
    if (!hasExponent && buffer.size() < handConversionLimit)
        return convertByHand(buffer.text());
    return convertPrefix(buffer.text(), buffer.size());
}

QVector<double> NumberText::parse(const QChar *&str)
{
    QVector<double> numbers;
    if (!str)
        return numbers;
    numbers.reserve(expectedNumbers);
    const auto skipSpace = [&str] {
        while (str->isSpace())
            ++str;
    };
    const auto startsNumber = [](QChar c) {
        return isDigit(c) || c == QLatin1Char('-') || c == QLatin1Char('+') || c == QLatin1Char('.');
    };
    skipSpace();
    while (startsNumber(*str)) {
        numbers.append(toDouble(str));
        skipSpace();
        if (*str == QLatin1Char(','))
            ++str;
        skipSpace();
    }
    return numbers;
}

QString NumberText::write(double number)
{
    return QString::number(number, 'g', 6);
}

QString NumberText::write(const QVector<double> &numbers)
{
    QString text;
    for (int i = 0; i < numbers.size(); ++i) {
        const double number = numbers[i];
        if (i > 0 && number > 0 && qAbs(number) >= sizeEpsilon)
            text += QLatin1Char(',');
        text += write(number);
    }
    return text;
}
