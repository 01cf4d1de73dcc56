#include "grammar/calculations.h"

#include "grammar/numbers.h"

#include <QtCore/QtNumeric>

namespace Svg {

namespace {

/// Deepest nesting of parentheses.
constexpr int deepest = 16;

/// A sum of parts in different units, or a plain number.
struct Sum
{
    double number = 0;
    double percent = 0;
    double em = 0;
    double user = 0;
    bool isLength = false;
};

Sum scaled(const Sum &sum, double factor)
{
    return {sum.number * factor, sum.percent * factor, sum.em * factor, sum.user * factor, sum.isLength};
}

class Calculation
{
public:
    explicit Calculation(const Cursor &cursor)
        : m_cursor(cursor)
    {
    }

    /// All of the text, from "calc" on.
    bool read(Sum *result);

private:
    bool readSum(Sum *result);
    bool readProduct(Sum *result);
    bool readValue(Sum *result);
    bool readBrackets(Sum *result);
    bool takeCalc();

    Cursor m_cursor;
    int m_depth = 0;
};

bool addLength(const Length &length, Sum *sum)
{
    static const LengthContext oneEm{QSizeF(), 1, 0};
    sum->isLength = true;
    switch (length.unit) {
    case Unit::User:
        sum->user = length.value;
        return true;
    case Unit::Percent:
        sum->percent = length.value;
        return true;
    case Unit::Em:
    case Unit::Ex:
    case Unit::Ch:
        sum->em = toUserUnits(length, Axis::Horizontal, oneEm);
        return true;
    default:
        return false;
    }
}

// "calc" may stand before inner brackets, too.
bool Calculation::takeCalc()
{
    Cursor probe = m_cursor;
    if (probe.takeWord().compare(QLatin1String("calc"), Qt::CaseInsensitive) == 0)
        m_cursor = probe;
    return m_cursor.take('(');
}

bool Calculation::readBrackets(Sum *result)
{
    if (++m_depth > deepest || !takeCalc() || !readSum(result) || !m_cursor.take(')'))
        return false;
    --m_depth;
    return true;
}

bool Calculation::readValue(Sum *result)
{
    if (m_cursor.peek() == '(' || isLetter(m_cursor.peek()))
        return readBrackets(result);
    double number = 0;
    Cursor probe = m_cursor;
    if (!readNumber(probe, &number))
        return false;
    if (probe.peek() != '%' && !isLetter(probe.peek())) {
        m_cursor = probe;
        result->number = number;
        return true;
    }
    Length length;
    return readLength(m_cursor, &length) && addLength(length, result);
}

// One factor has to be a plain number, and so has what divides.
bool Calculation::readProduct(Sum *result)
{
    if (!readValue(result))
        return false;
    for (;;) {
        m_cursor.skipSpace();
        const bool divides = m_cursor.peek() == '/';
        if (!divides && m_cursor.peek() != '*')
            return true;
        ++m_cursor.at;
        m_cursor.skipSpace();
        Sum other;
        if (!readValue(&other) || (other.isLength && (divides || result->isLength)))
            return false;
        if (divides && other.number == 0)
            return false;
        if (other.isLength)
            *result = scaled(other, result->number);
        else
            *result = scaled(*result, divides ? 1 / other.number : other.number);
    }
}

bool Calculation::readSum(Sum *result)
{
    m_cursor.skipSpace();
    if (!readProduct(result))
        return false;
    for (;;) {
        m_cursor.skipSpace();
        const bool subtracts = m_cursor.peek() == '-';
        if (!subtracts && m_cursor.peek() != '+')
            return true;
        ++m_cursor.at;
        // Without a space, the sign belongs to a number.
        if (!isSpace(m_cursor.peek()))
            return false;
        m_cursor.skipSpace();
        Sum other;
        if (!readProduct(&other) || other.isLength != result->isLength)
            return false;
        const Sum added = scaled(other, subtracts ? -1 : 1);
        *result = {result->number + added.number, result->percent + added.percent, result->em + added.em,
                   result->user + added.user, result->isLength};
    }
}

bool Calculation::read(Sum *result)
{
    m_cursor.skipSpace();
    if (!readBrackets(result))
        return false;
    m_cursor.skipSpace();
    return m_cursor.atEnd() && qIsFinite(result->number + result->percent + result->em + result->user);
}

} // namespace

std::optional<Length> parseCalculation(QStringView text)
{
    const Latin1Text bytes(text);
    Sum sum;
    if (!Calculation(bytes.cursor()).read(&sum))
        return std::nullopt;
    if (!sum.isLength)
        return Length{sum.number, Unit::User};
    Length length;
    length.unit = sum.percent != 0 ? Unit::Percent : sum.em != 0 ? Unit::Em : Unit::User;
    length.value = sum.percent != 0 ? sum.percent : sum.em != 0 ? sum.em : sum.user;
    length.plusEm = length.unit == Unit::Percent ? sum.em : 0;
    length.plusUser = length.unit != Unit::User ? sum.user : 0;
    return length;
}

} // namespace Svg
