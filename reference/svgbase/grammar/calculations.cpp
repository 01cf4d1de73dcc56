#include "grammar/calculations.h"

#include "grammar/angles.h"
#include "grammar/mathfunctions.h"
#include "grammar/numbers.h"

#include <QtCore/QtMath>
#include <QtCore/QtNumeric>

namespace Svg {

namespace {

/// Deepest nesting of parentheses.
constexpr int deepest = 16;
/// Most functions of one calculation that wait for the values of percentages and font sizes.
constexpr int mostDeferred = 256;
constexpr int mostArguments = 256;

/// A function of values that are not known yet.
struct Deferred;

struct Term
{
    double factor = 1;
    std::shared_ptr<const Deferred> function;
};

enum class SumKind { Number, Angle, Length };

/// A sum of parts in different units, a plain number or an angle in degrees.
struct Sum
{
    SumKind kind = SumKind::Number;
    /// User units for a length.
    double plain = 0;
    double percent = 0;
    double em = 0;
    QVector<Term> terms;

    bool isKnown() const { return percent == 0 && em == 0 && terms.isEmpty(); }
};

struct Deferred
{
    MathFunction function;
    QVector<Sum> arguments;
};

double worth(const Sum &sum, double percentBase, double fontSize)
{
    double value = sum.plain + sum.percent / 100 * percentBase + sum.em * fontSize;
    for (const Term &term : sum.terms) {
        QVector<double> values;
        for (const Sum &argument : term.function->arguments)
            values.append(worth(argument, percentBase, fontSize));
        value += term.factor * appliedFunction(term.function->function, values);
    }
    return value;
}

Sum scaled(Sum sum, double factor)
{
    sum.plain *= factor;
    sum.percent *= factor;
    sum.em *= factor;
    for (Term &term : sum.terms)
        term.factor *= factor;
    return sum;
}

Sum plainSum(SumKind kind, double value)
{
    Sum sum;
    sum.kind = kind;
    sum.plain = value;
    return sum;
}

class Calculation
{
public:
    Calculation(const Cursor &cursor, const CalculationNames &names)
        : m_cursor(cursor)
        , m_names(names)
    {
    }

    /// From the name of a function to its last bracket.
    bool read(Sum *result);
    const Cursor &cursor() const { return m_cursor; }

private:
    bool readSum(Sum *result);
    bool readProduct(Sum *result);
    bool readValue(Sum *result);
    bool readWord(Sum *result);
    bool readBrackets(MathFunction function, Sum *result);
    bool readDimension(Sum *result);
    bool apply(MathFunction function, QVector<Sum> arguments, Sum *result);
    MathFunction takeRounding();

    Cursor m_cursor;
    const CalculationNames &m_names;
    int m_depth = 0;
    int m_deferred = 0;
};

bool setLength(const Length &length, Sum *sum)
{
    static const LengthContext oneEm{QSizeF(), 1, 0};
    sum->kind = SumKind::Length;
    switch (length.unit) {
    case Unit::User:
        sum->plain = length.value;
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

std::optional<double> constantNamed(const QString &name)
{
    if (name == QLatin1String("e"))
        return M_E;
    if (name == QLatin1String("pi"))
        return M_PI;
    if (name == QLatin1String("infinity"))
        return qInf();
    if (name == QLatin1String("nan"))
        return qQNaN();
    return std::nullopt;
}

// Names of functions may end with a digit.
QLatin1String takeFunctionName(Cursor &cursor)
{
    const char *begin = cursor.at;
    cursor.takeWord();
    while (isDigit(cursor.peek()))
        ++cursor.at;
    return QLatin1String(begin, int(cursor.at - begin));
}

// The rounding strategy precedes the values.
MathFunction Calculation::takeRounding()
{
    Cursor probe = m_cursor;
    probe.skipSpace();
    const char *begin = probe.at;
    while (isLetter(probe.peek()) || probe.peek() == '-')
        ++probe.at;
    const QString word = QString::fromLatin1(begin, int(probe.at - begin)).toLower();
    const bool isWay = probe.skipCommaSpace();
    MathFunction way = MathFunction::RoundNearest;
    if (word == QLatin1String("up"))
        way = MathFunction::RoundUp;
    else if (word == QLatin1String("down"))
        way = MathFunction::RoundDown;
    else if (word == QLatin1String("to-zero"))
        way = MathFunction::RoundToZero;
    else if (word != QLatin1String("nearest"))
        return way;
    if (isWay)
        m_cursor = probe;
    return way;
}

bool fits(MathSignature signature, SumKind kind)
{
    switch (signature) {
    case MathSignature::Numbers:
    case MathSignature::AngleOfNumber:
        return kind == SumKind::Number;
    case MathSignature::NumberOfAngle:
        return kind != SumKind::Length;
    default:
        return true;
    }
}

SumKind resultKind(MathSignature signature, SumKind kind)
{
    switch (signature) {
    case MathSignature::SameKind:
        return kind;
    case MathSignature::AngleOfNumber:
    case MathSignature::AngleOfAny:
        return SumKind::Angle;
    default:
        return SumKind::Number;
    }
}

// Known values are calculated at once; a plain number can't be deferred.
bool Calculation::apply(MathFunction function, QVector<Sum> arguments, Sum *result)
{
    const MathSignature signature = signatureOf(function);
    const SumKind kind = arguments.constFirst().kind;
    bool known = true;
    for (Sum &argument : arguments) {
        if (argument.kind != kind || !fits(signature, kind))
            return false;
        if (signature == MathSignature::NumberOfAngle && kind == SumKind::Number)
            argument.plain = qRadiansToDegrees(argument.plain);
        known = known && argument.isKnown();
    }
    if (function == MathFunction::Calc) {
        *result = arguments.constFirst();
        return true;
    }
    Sum sum;
    sum.kind = resultKind(signature, kind);
    if (known) {
        QVector<double> values;
        for (const Sum &argument : qAsConst(arguments))
            values.append(argument.plain);
        sum.plain = appliedFunction(function, values);
    } else {
        if (sum.kind != SumKind::Length || ++m_deferred > mostDeferred)
            return false;
        sum.terms.append({1, std::make_shared<const Deferred>(Deferred{function, arguments})});
    }
    *result = sum;
    return true;
}

bool Calculation::readBrackets(MathFunction function, Sum *result)
{
    if (++m_depth > deepest || !m_cursor.take('('))
        return false;
    if (function == MathFunction::RoundNearest)
        function = takeRounding();
    QVector<Sum> arguments;
    do {
        Sum argument;
        if (arguments.size() == mostArguments || !readSum(&argument))
            return false;
        arguments.append(argument);
        m_cursor.skipSpace();
    } while (m_cursor.take(','));
    // The end of the text closes open brackets (CSS Syntax 3 §5.4.9).
    if (!m_cursor.take(')') && !m_cursor.atEnd())
        return false;
    --m_depth;
    return takesArguments(function, arguments.size()) && apply(function, arguments, result);
}

bool Calculation::readWord(Sum *result)
{
    const QLatin1String word = takeFunctionName(m_cursor);
    if (m_cursor.peek() == '(') {
        const std::optional<MathFunction> function = mathFunction(word);
        return function && readBrackets(*function, result);
    }
    const QString name = QString(word).toLower();
    for (const auto &[known, value] : m_names) {
        if (name == known) {
            result->plain = value;
            return true;
        }
    }
    const std::optional<double> constant = constantNamed(name);
    result->plain = constant.value_or(0);
    return constant.has_value();
}

bool Calculation::readDimension(Sum *result)
{
    double number = 0;
    Cursor probe = m_cursor;
    if (!readNumber(probe, &number))
        return false;
    if (probe.peek() != '%' && !isLetter(probe.peek())) {
        m_cursor = probe;
        result->plain = number;
        return true;
    }
    if (const std::optional<double> degrees = degreesOf(probe.takeWord())) {
        m_cursor = probe;
        *result = plainSum(SumKind::Angle, number * *degrees);
        return true;
    }
    Length length;
    return readLength(m_cursor, &length) && setLength(length, result);
}

bool Calculation::readValue(Sum *result)
{
    if (m_cursor.peek() == '(')
        return readBrackets(MathFunction::Calc, result);
    if (isLetter(m_cursor.peek()))
        return readWord(result);
    Cursor probe = m_cursor;
    if (!probe.take('-') || !isLetter(probe.peek()))
        return readDimension(result);
    // "-infinity" is also a word.
    m_cursor = probe;
    if (!readWord(result))
        return false;
    result->plain = -result->plain;
    return !qIsFinite(result->plain);
}

// One factor must be a plain number, and so must a divisor.
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
        if (!readValue(&other))
            return false;
        const bool plain = other.kind == SumKind::Number;
        if (!plain && (divides || result->kind != SumKind::Number))
            return false;
        if (divides && other.plain == 0)
            return false;
        if (!plain)
            *result = scaled(other, result->plain);
        else
            *result = scaled(*result, divides ? 1 / other.plain : other.plain);
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
        if (!readProduct(&other) || other.kind != result->kind)
            return false;
        const Sum added = scaled(other, subtracts ? -1 : 1);
        result->plain += added.plain;
        result->percent += added.percent;
        result->em += added.em;
        result->terms += added.terms;
    }
}

bool Calculation::read(Sum *result)
{
    m_cursor.skipSpace();
    const std::optional<MathFunction> function = mathFunction(takeFunctionName(m_cursor));
    return function && readBrackets(*function, result) && qIsFinite(result->plain + result->percent + result->em);
}

} // namespace

struct DeferredLength
{
    Sum sum;
};

double calculated(const DeferredLength &length, double percentBase, double fontSize)
{
    const double value = worth(length.sum, percentBase, fontSize);
    return qIsFinite(value) ? value : 0;
}

std::optional<Length> parseCalculation(QStringView text)
{
    const Latin1Text bytes(text);
    static const CalculationNames none;
    Calculation calculation(bytes.cursor(), none);
    Sum sum;
    if (!calculation.read(&sum) || sum.kind == SumKind::Angle)
        return std::nullopt;
    Cursor rest = calculation.cursor();
    rest.skipSpace();
    if (!rest.atEnd())
        return std::nullopt;
    if (sum.isKnown())
        return Length{sum.plain, Unit::User};
    Length length;
    if (!sum.terms.isEmpty()) {
        length.deferred = std::make_shared<const DeferredLength>(DeferredLength{sum});
        return length;
    }
    length.unit = sum.percent != 0 ? Unit::Percent : Unit::Em;
    length.value = sum.percent != 0 ? sum.percent : sum.em;
    length.plusEm = length.unit == Unit::Percent ? sum.em : 0;
    length.plusUser = sum.plain;
    return length;
}

std::optional<CalculatedNumber> readCalculation(Cursor &cursor, const CalculationNames &names)
{
    Calculation calculation(cursor, names);
    Sum sum;
    if (!calculation.read(&sum) || sum.em != 0 || !sum.terms.isEmpty())
        return std::nullopt;
    if (sum.kind == SumKind::Length && sum.plain != 0)
        return std::nullopt;
    cursor = calculation.cursor();
    if (sum.kind == SumKind::Length)
        return CalculatedNumber{CalculatedNumber::Percent, sum.percent};
    const bool angle = sum.kind == SumKind::Angle;
    return CalculatedNumber{angle ? CalculatedNumber::Angle : CalculatedNumber::Number, sum.plain};
}

} // namespace Svg
