#include <shape/literal.h>

#include <cmath>

/// Qt's conversion without locale: exported by Qt Core, but without a public header.
Q_CORE_EXPORT double qstrtod(const char *text, const char **end, bool *ok);

namespace {

constexpr int bufferSize = 256;

int unitAt(const QString &text, int at)
{
    return at < text.size() ? text.at(at).unicode() : 0;
}

bool isDigit(int unit)
{
    return unit >= '0' && unit <= '9';
}

bool isSpace(int unit)
{
    switch (unit) {
    case '\t':
    case '\n':
    case '\v':
    case '\f':
    case '\r':
    case ' ':
    case 0x85:
    case 0xa0:
    case 0x1680:
    case 0x2028:
    case 0x2029:
    case 0x202f:
    case 0x205f:
    case 0x3000:
        return true;
    default:
        return unit >= 0x2000 && unit <= 0x200a;
    }
}

double byHand(const char *buffer)
{
    int next = 0;
    bool negative = false;
    if (buffer[next] == '-') {
        negative = true;
        next = next + 1;
    }
    int value = 0;
    while (buffer[next] != '\0' && buffer[next] != '.') {
        value = value * 10 + (buffer[next] - '0');
        next = next + 1;
    }
    double divisor = 1;
    if (buffer[next] == '.') {
        next = next + 1;
        while (buffer[next] != '\0') {
            value = value * 10 + (buffer[next] - '0');
            divisor = divisor * 10;
            next = next + 1;
        }
    }
    const double result = double(value) / divisor;
    return negative ? -result : result;
}

} // namespace

double literal::toDouble(const QString &text, int &at)
{
    char buffer[bufferSize] = {};
    int count = 0;
    bool hasExponent = false;
    const auto isFull = [&] { return count == bufferSize - 1; };
    const auto copy = [&](char character) {
        buffer[count] = character;
        count = count + 1;
        at = at + 1;
    };
    const auto copyDigits = [&] {
        while (!isFull() && isDigit(unitAt(text, at)))
            copy(char(unitAt(text, at)));
    };
    const auto convert = [&] { return qstrtod(buffer, nullptr, nullptr); };

    if (unitAt(text, at) == '-')
        copy('-');
    else if (unitAt(text, at) == '+')
        at = at + 1;

    copyDigits();
    if (isFull())
        return convert();

    if (unitAt(text, at) == '.') {
        copy('.');
        copyDigits();
        if (isFull())
            return convert();
    }

    if (unitAt(text, at) == 'e' || unitAt(text, at) == 'E') {
        hasExponent = true;
        copy('e');
        if (isFull())
            return convert();
        if (unitAt(text, at) == '+')
            copy('+');
        else if (unitAt(text, at) == '-')
            copy('-');
        copyDigits();
        if (isFull())
            return convert();
    }

    if (!hasExponent && count < 10)
        return byHand(buffer);
    return convert();
}

std::vector<double> literal::parseNumbersList(const QString &text, int &at)
{
    std::vector<double> numbers;
    while (isSpace(unitAt(text, at)))
        at = at + 1;
    for (;;) {
        const int unit = unitAt(text, at);
        const bool starts = isDigit(unit) || unit == '-' || unit == '+' || unit == '.';
        if (!starts)
            return numbers;
        numbers.push_back(literal::toDouble(text, at));
        while (isSpace(unitAt(text, at)))
            at = at + 1;
        if (unitAt(text, at) == ',')
            at = at + 1;
        while (isSpace(unitAt(text, at)))
            at = at + 1;
    }
}

QString literal::numbersToString(const std::vector<double> &numbers)
{
    QString result(QLatin1String(""));
    bool first = true;
    for (const double number : numbers) {
        const bool positive = std::fabs(number) >= 1e-7 && number > 0;
        if (!first && positive)
            result.append(QLatin1Char(','));
        result.append(QStringLiteral("%1").arg(number, 0, 'g', -1));
        first = false;
    }
    return result;
}
