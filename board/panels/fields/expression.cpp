#include "panels/fields/expression.h"

#include <QtCore/QHash>
#include <QtCore/QLocale>

#include <cmath>

namespace board {

namespace {

/// Longer texts are no expressions; also bounds the depth of parentheses.
constexpr int longestText = 200;
/// Of a page, per inch.
constexpr double pixelsPerInch = 96;
constexpr double percent = 0.01;
const QString pixelUnit = QStringLiteral("px");
const QString percentUnit = QStringLiteral("%");

const QHash<QString, double> &lengthUnits()
{
    static const QHash<QString, double> units{{pixelUnit, 1},
                                              {QStringLiteral("mm"), pixelsPerInch / 25.4},
                                              {QStringLiteral("cm"), pixelsPerInch / 2.54},
                                              {QStringLiteral("in"), pixelsPerInch},
                                              {QStringLiteral("pt"), pixelsPerInch / 72}};
    return units;
}

/// Signs of other keyboards as those of this grammar.
QString simplified(const QString &text)
{
    QString simple = text.simplified();
    simple.replace(QChar(0x2212), QLatin1Char('-')); // minus
    simple.replace(QChar(0x00d7), QLatin1Char('*')); // times
    simple.replace(QChar(0x00f7), QLatin1Char('/')); // divided by
    simple.replace(QLatin1Char(','), QLatin1Char('.'));
    return simple;
}

/// Reads front to back. Whatever fails makes the whole text fail.
class ExpressionReader
{
public:
    ExpressionReader(const QString &text, const ExpressionContext &context)
        : m_text(text)
        , m_context(context)
    {
    }

    std::optional<double> read()
    {
        const double value = startsWithOperator() ? changedPresent() : sum();
        skipSpaces();
        if (m_failed || m_pos < m_text.size() || !std::isfinite(value))
            return std::nullopt;
        return value;
    }

private:
    bool startsWithOperator() const
    {
        return m_context.present && !m_text.isEmpty() && QStringLiteral("+*/").contains(m_text.front());
    }

    double changedPresent()
    {
        const double present = *m_context.present;
        if (take('+'))
            return present + sum();
        return take('*') ? present * sum() : divided(present, (take('/'), sum()));
    }

    double sum()
    {
        double value = product();
        while (!m_failed)
            if (take('+'))
                value += product();
            else if (take('-'))
                value -= product();
            else
                break;
        return value;
    }

    double product()
    {
        double value = factor();
        while (!m_failed)
            if (take('*'))
                value *= factor();
            else if (take('/'))
                value = divided(value, factor());
            else
                break;
        return value;
    }

    double factor()
    {
        if (take('-'))
            return -factor();
        if (take('+'))
            return factor();
        if (!take('('))
            return number() * unit();
        const double value = sum();
        m_failed |= !take(')');
        return m_failed ? 0 : value * unit();
    }

    double number()
    {
        skipSpaces();
        const int start = m_pos;
        while (m_pos < m_text.size() && (m_text[m_pos].isDigit() || m_text[m_pos] == QLatin1Char('.')))
            ++m_pos;
        bool isNumber = false;
        const double value = QLocale::c().toDouble(m_text.mid(start, m_pos - start), &isNumber);
        m_failed |= !isNumber;
        return value;
    }

    double unit()
    {
        skipSpaces();
        const int start = m_pos;
        while (m_pos < m_text.size() && isOfUnit(m_text[m_pos]))
            ++m_pos;
        return m_pos == start ? 1 : factorOf(m_text.mid(start, m_pos - start));
    }

    static bool isOfUnit(QChar sign)
    {
        return !sign.isSpace() && !sign.isDigit() && !QStringLiteral("+-*/().").contains(sign);
    }

    double factorOf(const QString &unit)
    {
        if (unit == m_context.unit)
            return 1;
        if (unit == percentUnit && m_context.present)
            return *m_context.present * percent;
        const auto length = lengthUnits().constFind(unit.toLower());
        if (m_context.unit == pixelUnit && length != lengthUnits().constEnd())
            return *length;
        m_failed = true;
        return 0;
    }

    double divided(double value, double by)
    {
        m_failed |= by == 0;
        return m_failed ? 0 : value / by;
    }

    bool take(char sign)
    {
        skipSpaces();
        if (m_pos >= m_text.size() || m_text[m_pos] != QLatin1Char(sign))
            return false;
        ++m_pos;
        return true;
    }

    void skipSpaces()
    {
        while (m_pos < m_text.size() && m_text[m_pos].isSpace())
            ++m_pos;
    }

    const QString m_text;
    const ExpressionContext &m_context;
    int m_pos = 0;
    bool m_failed = false;
};

} // namespace

std::optional<double> expressionValue(const QString &text, const ExpressionContext &context)
{
    if (text.size() > longestText)
        return std::nullopt;
    return ExpressionReader(simplified(text), context).read();
}

} // namespace board
