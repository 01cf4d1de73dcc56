#include <shapekit/formula.h>

#include <QtCore/QScopedValueRollback>
#include <QtCore/QStringList>
#include <QtCore/QVarLengthArray>

#include <algorithm>
#include <cmath>
#include <limits>

namespace shapekit {

namespace {

constexpr int deepest = 40;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct NamedFunction
{
    const char *name;
    double (*value)(double);
};

double signOf(double value)
{
    return value > 0 ? 1 : value < 0 ? -1 : value;
}

const NamedFunction functions[] = {
    {"sin", std::sin},   {"cos", std::cos},     {"tan", std::tan},   {"asin", std::asin},   {"arcsin", std::asin},
    {"acos", std::acos}, {"arccos", std::acos}, {"atan", std::atan}, {"arctan", std::atan}, {"sinh", std::sinh},
    {"cosh", std::cosh}, {"tanh", std::tanh},   {"exp", std::exp},   {"ln", std::log},      {"log", std::log10},
    {"lg", std::log10},  {"ld", std::log2},     {"sqrt", std::sqrt}, {"cbrt", std::cbrt},   {"abs", std::fabs},
    {"sgn", signOf},     {"floor", std::floor}, {"ceil", std::ceil}, {"round", std::round}};

int functionNamed(const QString &name)
{
    const auto found = std::find_if(std::begin(functions), std::end(functions),
                                    [&name](const NamedFunction &one) { return name == QLatin1String(one.name); });
    return found == std::end(functions) ? -1 : int(found - std::begin(functions));
}

double constantNamed(const QString &name)
{
    if (name == QLatin1String("pi") || name == QString(QChar(0x3c0)))
        return std::acos(-1.0);
    return name == QLatin1String("e") ? std::exp(1.0) : notANumber;
}

/// One sign for those that mean the same, on keyboards and in print.
QChar usual(QChar sign)
{
    switch (sign.unicode()) {
    case 0xb7:
    case 0xd7:
    case 0x22c5:
        return QLatin1Char('*');
    case 0xf7:
    case ':':
        return QLatin1Char('/');
    case 0x2212:
    case 0x2013:
        return QLatin1Char('-');
    default:
        return sign;
    }
}

/// 2 and 3 for raised digits, else 0.
int raisedDigit(QChar sign)
{
    return sign == QChar(0xb2) ? 2 : sign == QChar(0xb3) ? 3 : 0;
}

} // namespace

/// Reads a formula by recursive descent. Each operation is false after a fault.
class FormulaReader
{
public:
    FormulaReader(Formula &formula, const QString &text)
        : m_formula(formula)
        , m_text(text)
    {
    }

    void read()
    {
        if (m_text.size() > Formula::mostCharacters) {
            fail(Formula::TooLong, Formula::mostCharacters);
            return;
        }
        skipLeftSide();
        if (next().isNull())
            fail(Formula::Empty, 0);
        else if (sum() && !next().isNull())
            fail(Formula::Unexpected, m_offset);
    }

private:
    using Step = Formula::Step;

    bool fail(Formula::Fault fault, int offset)
    {
        m_formula.m_fault = fault;
        m_formula.m_faultOffset = offset;
        m_formula.m_faultyText = wordAt(offset);
        m_formula.m_steps.clear();
        return false;
    }
    /// A sign that nothing can be read from, or the end.
    bool failHere() { return fail(next().isNull() ? Formula::Incomplete : Formula::Unexpected, m_offset); }

    /// The letters from there on, or else the one sign.
    QString wordAt(int offset) const
    {
        int end = offset;
        while (end < m_text.size() && m_text.at(end).isLetter())
            ++end;
        return m_text.mid(offset, std::max(1, end - offset));
    }
    /// The next sign but for blanks; null at the end.
    QChar next()
    {
        while (m_offset < m_text.size() && m_text.at(m_offset).isSpace())
            ++m_offset;
        return m_offset < m_text.size() ? usual(m_text.at(m_offset)) : QChar();
    }
    bool take(char sign)
    {
        if (next() != QLatin1Char(sign))
            return false;
        ++m_offset;
        return true;
    }
    void add(Step::Kind kind, double number = 0, int function = 0)
    {
        m_formula.m_steps.append({kind, number, function});
    }

    /// "y =" or "f(x) =".
    void skipLeftSide()
    {
        const int equals = m_text.indexOf(QLatin1Char('='));
        const QString left = m_text.left(equals).remove(QLatin1Char(' '));
        const bool isName = left.size() == 1 && left.at(0).isLetter() && left != QLatin1String("x");
        const bool isCall = left.size() == 4 && left.at(0).isLetter() && left.endsWith(QLatin1String("(x)"));
        if (equals > 0 && (isName || isCall))
            m_offset = equals + 1;
    }

    bool sum()
    {
        const QScopedValueRollback<int> depth(m_depth, m_depth + 1);
        if (m_depth > deepest)
            return fail(Formula::TooLong, m_offset);
        if (!product())
            return false;
        for (;;) {
            const bool isPlus = take('+');
            if (!isPlus && !take('-'))
                return true;
            if (!product())
                return false;
            add(isPlus ? Step::Add : Step::Subtract);
        }
    }

    bool product()
    {
        if (!factor())
            return false;
        for (;;) {
            const bool divides = take('/');
            if (!divides && !take('*') && !isLeftOut())
                return true;
            if (!factor())
                return false;
            add(divides ? Step::Divide : Step::Multiply);
        }
    }
    /// Whether a factor follows without a sign. A bar closes the one that is open.
    bool isLeftOut()
    {
        const QChar sign = next();
        return sign.isLetter() || sign == QLatin1Char('(') || sign == QChar(0x221a) ||
               (sign == QLatin1Char('|') && m_openBars == 0);
    }

    bool factor()
    {
        const QScopedValueRollback<int> depth(m_depth, m_depth + 1);
        if (m_depth > deepest)
            return fail(Formula::TooLong, m_offset);
        if (take('+'))
            return factor();
        if (!take('-'))
            return power();
        if (!factor())
            return false;
        add(Step::Negate);
        return true;
    }

    bool power()
    {
        if (!operand())
            return false;
        if (const int digit = raisedDigit(next())) {
            ++m_offset;
            add(Step::Number, digit);
            add(Step::Power);
        }
        if (!take('^'))
            return true;
        if (!factor())
            return false;
        add(Step::Power);
        return true;
    }

    bool operand()
    {
        const QChar sign = next();
        if (sign.isDigit() || sign == QLatin1Char('.') || sign == QLatin1Char(','))
            return number();
        if (sign.isLetter())
            return name();
        const int start = m_offset;
        if (take('('))
            return enclosed(start, ')');
        if (take('|'))
            return bars(start);
        if (sign != QChar(0x221a))
            return failHere();
        ++m_offset;
        return operand() && apply(functionNamed(QStringLiteral("sqrt")));
    }

    bool enclosed(int start, char closing)
    {
        const QScopedValueRollback<int> bars(m_openBars, closing == '|' ? m_openBars + 1 : 0);
        if (!sum())
            return false;
        if (take(closing))
            return true;
        return next().isNull() ? fail(Formula::Unclosed, start) : failHere();
    }
    bool bars(int start) { return enclosed(start, '|') && apply(functionNamed(QStringLiteral("abs"))); }
    bool apply(int function)
    {
        add(Step::Function, 0, function);
        return true;
    }

    bool number()
    {
        const int start = m_offset;
        QString digits;
        bool hasPoint = false;
        for (; m_offset < m_text.size(); ++m_offset) {
            const QChar sign = m_text.at(m_offset);
            const bool isPoint = sign == QLatin1Char('.') || sign == QLatin1Char(',');
            if ((isPoint && hasPoint) || (!isPoint && !sign.isDigit()))
                break;
            hasPoint |= isPoint;
            digits += isPoint ? QLatin1Char('.') : QLatin1Char(char('0' + sign.digitValue()));
        }
        bool isNumber = false;
        const double value = digits.toDouble(&isNumber);
        if (!isNumber)
            return fail(Formula::Unexpected, start);
        add(Step::Number, value);
        return true;
    }

    bool name()
    {
        const int start = m_offset;
        const QString word = wordAt(start);
        const QString known = word.toLower();
        m_offset += word.size();
        if (known == QLatin1String("x")) {
            add(Step::Argument);
            return true;
        }
        const double constant = constantNamed(known);
        if (!std::isnan(constant)) {
            add(Step::Number, constant);
            return true;
        }
        const int function = functionNamed(known);
        if (function < 0)
            return fail(Formula::UnknownName, start);
        const int parenthesis = (next(), m_offset);
        if (!take('('))
            return fail(Formula::NoArgument, start);
        return enclosed(parenthesis, ')') && apply(function);
    }

    Formula &m_formula;
    QString m_text;
    int m_offset = 0;
    int m_depth = 0;
    int m_openBars = 0; ///< since the last parenthesis
};

Formula::Formula(const QString &text)
{
    FormulaReader(*this, text).read();
}

double Formula::calculated(Step::Kind kind, double left, double right)
{
    switch (kind) {
    case Step::Add:
        return left + right;
    case Step::Subtract:
        return left - right;
    case Step::Multiply:
        return left * right;
    case Step::Divide:
        return left / right;
    default:
        return std::pow(left, right);
    }
}

double Formula::at(double x) const
{
    if (m_steps.isEmpty())
        return notANumber;
    QVarLengthArray<double, mostCharacters + 2> stack;
    for (const Step &step : m_steps) {
        if (step.kind == Step::Number || step.kind == Step::Argument) {
            stack.append(step.kind == Step::Number ? step.number : x);
            continue;
        }
        const double right = stack.last();
        stack.removeLast();
        if (step.kind == Step::Negate)
            stack.append(-right);
        else if (step.kind == Step::Function)
            stack.append(functions[step.function].value(right));
        else
            stack.last() = calculated(step.kind, stack.last(), right);
    }
    return stack.last();
}

QStringList Formula::functionNames()
{
    QStringList names;
    for (const NamedFunction &function : functions)
        names.append(QLatin1String(function.name));
    return names;
}

} // namespace shapekit
