#include <declared/core/attributecheck.h>

#include <QtCore/QStringList>
#include <QtGui/QColor>

namespace declared {

namespace {

/// Walks over the numbers and letters of an attribute.
class Scanner
{
public:
    explicit Scanner(const QString &text)
        : m_next(text.constData())
        , m_end(m_next + text.size())
    {
    }

    bool atEnd()
    {
        skipSpace();
        return m_next == m_end;
    }
    QChar takeLetter() { return atEnd() || !m_next->isLetter() ? QChar() : *m_next++; }
    bool atNumber() { return !atEnd() && (isDigit() || isOneOf('+', '-') || *m_next == QLatin1Char('.')); }
    bool takeNumber()
    {
        skipSpace();
        if (m_next != m_end && isOneOf('+', '-'))
            ++m_next;
        int digits = takeDigits();
        if (m_next != m_end && *m_next == QLatin1Char('.')) {
            ++m_next;
            digits += takeDigits();
        }
        if (digits > 0)
            takeExponent();
        takeComma();
        return digits > 0;
    }
    /// A flag of an arc, which needs no space behind it.
    bool takeFlag()
    {
        skipSpace();
        if (m_next == m_end || !isOneOf('0', '1'))
            return false;
        ++m_next;
        takeComma();
        return true;
    }

private:
    bool isDigit() const { return *m_next >= QLatin1Char('0') && *m_next <= QLatin1Char('9'); }
    bool isOneOf(char one, char other) const
    {
        return *m_next == QLatin1Char(one) || *m_next == QLatin1Char(other);
    }
    void skipSpace()
    {
        while (m_next != m_end && m_next->isSpace())
            ++m_next;
    }
    void takeComma()
    {
        skipSpace();
        if (m_next != m_end && *m_next == QLatin1Char(','))
            ++m_next;
    }
    int takeDigits()
    {
        const QChar *const start = m_next;
        while (m_next != m_end && isDigit())
            ++m_next;
        return int(m_next - start);
    }
    void takeExponent()
    {
        const QChar *const before = m_next;
        if (m_next == m_end || !isOneOf('e', 'E'))
            return;
        ++m_next;
        if (m_next != m_end && isOneOf('+', '-'))
            ++m_next;
        if (takeDigits() == 0)
            m_next = before;
    }

    const QChar *m_next;
    const QChar *m_end;
};

/// How many numbers a path command takes (SVG 1.1 §8.3); negative for none that is known.
int numbersOf(QChar command)
{
    switch (command.toUpper().toLatin1()) {
    case 'Z':
        return 0;
    case 'H':
    case 'V':
        return 1;
    case 'M':
    case 'L':
    case 'T':
        return 2;
    case 'S':
    case 'Q':
        return 4;
    case 'C':
        return 6;
    case 'A':
        return 7;
    default:
        return -1;
    }
}

bool takeNumbers(Scanner &scanner, QChar command, int count)
{
    const bool isArc = command.toUpper() == QLatin1Char('A');
    for (int i = 0; i < count; ++i) {
        const bool isFlag = isArc && (i == 3 || i == 4);
        if (!(isFlag ? scanner.takeFlag() : scanner.takeNumber()))
            return false;
    }
    return true;
}

bool isPath(const QString &text)
{
    Scanner scanner(text);
    for (bool isFirst = true; !scanner.atEnd(); isFirst = false) {
        const QChar command = scanner.takeLetter();
        const int count = numbersOf(command);
        if (count < 0 || (isFirst && command.toUpper() != QLatin1Char('M')))
            return false;
        do {
            if (!takeNumbers(scanner, command, count))
                return false;
        } while (count > 0 && scanner.atNumber());
    }
    return true;
}

bool isPointList(const QString &text)
{
    Scanner scanner(text);
    while (!scanner.atEnd())
        if (!scanner.takeNumber() || !scanner.takeNumber())
            return false;
    return true;
}

bool isLength(const QString &text)
{
    static const QStringList units{
        QString(),           QStringLiteral("px"), QStringLiteral("pt"), QStringLiteral("em"),
        QStringLiteral("%"), QStringLiteral("mm"), QStringLiteral("cm")};
    const QString trimmed = text.trimmed();
    int digits = trimmed.size();
    while (digits > 0 && !trimmed.at(digits - 1).isDigit() && trimmed.at(digits - 1) != QLatin1Char('.'))
        --digits;
    bool isNumber = false;
    trimmed.leftRef(digits).toDouble(&isNumber);
    return isNumber && units.contains(trimmed.mid(digits));
}

bool isPaint(const QString &text)
{
    return QColor::isValidColor(text) || text == QLatin1String("none") || text == QLatin1String("currentColor") ||
           text == QLatin1String("inherit") || text.contains(QLatin1Char('('));
}

} // namespace

bool isValidAttribute(const QString &name, const QString &text)
{
    static const QStringList lengths{QStringLiteral("x"),
                                     QStringLiteral("y"),
                                     QStringLiteral("width"),
                                     QStringLiteral("height"),
                                     QStringLiteral("rx"),
                                     QStringLiteral("ry"),
                                     QStringLiteral("cx"),
                                     QStringLiteral("cy"),
                                     QStringLiteral("r"),
                                     QStringLiteral("x1"),
                                     QStringLiteral("y1"),
                                     QStringLiteral("x2"),
                                     QStringLiteral("y2"),
                                     QStringLiteral("opacity"),
                                     QStringLiteral("stroke-width"),
                                     QStringLiteral("font-size"),
                                     QStringLiteral("fill-opacity"),
                                     QStringLiteral("stroke-opacity"),
                                     QStringLiteral("stroke-dashoffset")};
    if (name == QLatin1String("d") || name == QLatin1String("path"))
        return isPath(text);
    if (name == QLatin1String("points"))
        return isPointList(text);
    if (name == QLatin1String("fill") || name == QLatin1String("stroke"))
        return isPaint(text);
    return !lengths.contains(name) || isLength(text);
}

} // namespace declared
