#include <shape/literal.h>
#include <shape/pathcomparison.h>

#include <svgobj/csvgbase.h>

#include "shape/numbertext.h"
#include "shape/pathtext.h"

#include <QtCore/QStringList>

#include <cstring>
#include <memory>

namespace {

/// A copy of a text on the heap that ends with its last character, or with a zero behind it.
class ExactText
{
public:
    ExactText(const QString &text, bool terminated)
        : m_units(new QChar[size_t(text.size() + (terminated ? 1 : 0))]())
        , m_size(text.size())
    {
        std::copy(text.cbegin(), text.cend(), m_units.get());
    }
    const QChar *units() const { return m_units.get(); }
    QString text() const { return QString::fromRawData(m_units.get(), m_size); }

private:
    std::unique_ptr<QChar[]> m_units;
    int m_size;
};

quint64 bitsOf(double number)
{
    quint64 bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

/// All digits and the sign, also that of a zero.
QString exactly(double number)
{
    return QStringLiteral("%1 (%2)").arg(number, 0, 'g', 17).arg(bitsOf(number), 16, 16, QLatin1Char('0'));
}

template<typename Numbers> QString exactly(const Numbers &numbers)
{
    QStringList texts;
    for (const double number : numbers)
        texts.append(exactly(number));
    return texts.join(QStringLiteral("; "));
}

/// Visible whatever characters the text has.
QString quoted(const QString &text)
{
    QString result;
    for (const QChar character : text) {
        const ushort unit = character.unicode();
        result += unit >= ' ' && unit < 127 ? QString(character)
                                            : QStringLiteral("\\u%1").arg(unit, 4, 16, QLatin1Char('0'));
    }
    return QLatin1Char('"') + result + QLatin1Char('"');
}

QString report(const char *operation, const QString &text, const QString &actual, const QString &expected)
{
    if (actual == expected)
        return QString();
    return QStringLiteral("%1 of %2:\n  %3, but literally\n  %4\n")
        .arg(QLatin1String(operation), quoted(text), quoted(actual), quoted(expected));
}

/// A number or a list of them, and where its reading ended.
template<typename Value> struct Reading
{
    Value value;
    qint64 end;

    QString text() const { return QStringLiteral("%1 up to %2").arg(exactly(value)).arg(end); }
};

bool same(double a, double b)
{
    return bitsOf(a) == bitsOf(b);
}

bool same(const QVector<double> &a, const std::vector<double> &b)
{
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(), [](double x, double y) { return same(x, y); });
}

template<typename Value, typename Expected>
QString report(const char *operation, const QString &text, const Reading<Value> &actual,
               const Reading<Expected> &expected)
{
    if (actual.end == expected.end && same(actual.value, expected.value))
        return QString();
    return QStringLiteral("%1 of %2:\n  %3, but literally\n  %4\n")
        .arg(QLatin1String(operation), quoted(text), actual.text(), expected.text());
}

QString singleNumbersDifference(const QString &text, const ExactText &exact)
{
    const QChar *str = exact.units();
    for (int at = 0; at <= text.size(); ++at, ++str) {
        const int begin = at;
        const double value = toDouble(str);
        const Reading<double> actual{value, str - exact.units()};
        const double expected = literal::toDouble(text, at);
        if (actual.end != at || !same(value, expected))
            return report("toDouble", text.mid(begin), actual, Reading<double>{expected, at});
    }
    return QString();
}

} // namespace

QString comparison::numbersDifference(const QString &text)
{
    const ExactText exact(text, true);
    QString found = singleNumbersDifference(text, exact);
    if (!found.isEmpty())
        return found;
    const QChar *str = exact.units();
    int at = 0;
    const QVector<double> actual = NumberText::parse(str);
    const std::vector<double> expected = literal::parseNumbersList(text, at);
    return report("parseNumbersList", text, Reading<QVector<double>>{actual, str - exact.units()},
                  Reading<std::vector<double>>{expected, at}) +
           report("numbersToString", text, NumberText::write(actual), literal::numbersToString(expected));
}

QString comparison::stretchingDifference(const QString &text, const Edit &edit)
{
    using PathText::Axis;
    const ExactText exact(text, false);
    const QString path = exact.text();
    return singleStretchingDifference(text, edit) +
           report("changePathWidth from", text, PathText::grown(path, Axis::Width, edit.dx, edit.from, true),
                  literal::changePathWidth(text, edit.dx, edit.from)) +
           report("changePathHeight from", text, PathText::grown(path, Axis::Height, edit.dy, edit.from, true),
                  literal::changePathHeight(text, edit.dy, edit.from));
}

QString comparison::singleStretchingDifference(const QString &text, const Edit &edit)
{
    using PathText::Axis;
    const ExactText exact(text, false);
    const QString path = exact.text();
    return report("changePathBeginPoint", text, PathText::movedStart(path, edit.dx, edit.dy),
                  literal::changePathBeginPoint(text, edit.dx, edit.dy)) +
           report("changePathWidth", text, PathText::grown(path, Axis::Width, edit.dx, 0, false),
                  literal::changePathWidth(text, edit.dx)) +
           report("changePathHeight", text, PathText::grown(path, Axis::Height, edit.dy, 0, false),
                  literal::changePathHeight(text, edit.dy));
}
