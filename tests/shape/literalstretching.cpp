#include <shape/literal.h>

#include <cmath>

namespace {

constexpr int noIndex = -1;
/// Differs from all characters of a text.
constexpr int noUnit = -1;

int unitAt(const QString &text, int at)
{
    return at >= 0 && at < text.size() ? text.at(at).unicode() : noUnit;
}

bool isDigit(int unit)
{
    return unit >= '0' && unit <= '9';
}

bool isLetter(int unit)
{
    if (unit == noUnit)
        return false;
    return (unit >= 'A' && unit <= 'Z') || (unit >= 'a' && unit <= 'z') || QChar(ushort(unit)).isLetter();
}

/// The characters from `begin` on, before `end`, as far as the text has them.
QString cut(const QString &text, int begin, int end)
{
    QString result;
    for (int at = begin; at < end && at < text.size(); ++at)
        result.append(text.at(at));
    return result;
}

QString rest(const QString &text, int begin)
{
    return cut(text, begin, text.size());
}

/// Counted from the end when `from` is negative, and from the start when that is before it.
int find(const QString &text, char letter, qint64 from)
{
    if (from < 0)
        from = from + text.size();
    if (from < 0)
        from = 0;
    for (qint64 at = from; at < text.size(); ++at)
        if (unitAt(text, int(at)) == letter)
            return int(at);
    return noIndex;
}

QString number(double value)
{
    return QString::number(value, 'g', 6);
}

double grown(double value, double delta)
{
    if (value < 0 && std::fabs(value) >= 1e-7)
        return value - delta;
    return value + delta;
}

/// After a piece was edited: on with the edited path, from the index `end` of the unedited one, when the rest of
/// the unedited one has the same letter further on.
template<typename Again>
QString goOn(const QString &path, const QString &edited, int end, char letter, bool all, Again again)
{
    if (!all)
        return edited;
    if (find(rest(path, end), letter, 0) > 0)
        return again(edited, end);
    return edited;
}

template<typename Again>
QString changeSingle(const QString &path, char letter, int i, int limit, double delta, bool all, Again again)
{
    int j = i + 2;
    while (isDigit(unitAt(path, j)) || unitAt(path, j) == '-' || unitAt(path, j) == '.') {
        j = j + 1;
        if (j - (i + 1) > limit)
            return path;
    }
    const double value = cut(path, i + 1, j).toDouble();
    const QString edited = cut(path, 0, i + 1) + number(grown(value, delta)) + rest(path, j);
    return goOn(path, edited, j, letter, all, again);
}

template<typename Again> QString changeLineX(const QString &path, int i, double delta, bool all, Again again)
{
    int j = i + 2;
    while (unitAt(path, j) != ',' && unitAt(path, j) != '-') {
        if (j >= path.size())
            return path;
        j = j + 1;
        if (j - (i + 1) > 29)
            return path;
    }
    const double value = cut(path, i + 1, j).toDouble();
    const QString edited = cut(path, 0, i + 1) + number(grown(value, delta)) + rest(path, j);
    return goOn(path, edited, j, 'l', all, again);
}

template<typename Again> QString changeLineY(const QString &path, int i, double delta, bool all, Again again)
{
    int j = i + 2;
    while (isDigit(unitAt(path, j)) || unitAt(path, j) == ',' || unitAt(path, j) == '-' || unitAt(path, j) == '.') {
        j = j + 1;
        if (j - (i + 1) > 29)
            return path;
    }
    const QString pair = cut(path, i + 1, j);
    int separator = find(pair, ',', 0);
    if (separator == noIndex)
        separator = find(pair, '-', 0);
    QString edited = cut(path, 0, i + 1);
    if (separator > 0)
        edited = edited + cut(pair, 0, separator + 1) + number(grown(rest(pair, separator + 1).toDouble(), delta));
    edited = edited + rest(path, j);
    return goOn(path, edited, j, 'l', all, again);
}

QString changeWidth(const QString &path, double delta, int from, bool all)
{
    const auto again = [&](const QString &edited, int next) { return changeWidth(edited, delta, next, true); };
    int i = find(path, 'h', from);
    if (i > 0)
        return changeSingle(path, 'h', i, 19, delta, all, again);
    i = find(path, 'l', from);
    if (i > 0)
        return changeLineX(path, i, delta, all, again);
    return path;
}

QString changeHeight(const QString &path, double delta, int from, bool all)
{
    const auto again = [&](const QString &edited, int next) { return changeHeight(edited, delta, next, true); };
    int i = find(path, 'v', from);
    if (i > 0)
        return changeSingle(path, 'v', i, 29, delta, all, again);
    i = find(path, 'l', from);
    if (i > 0)
        return changeLineY(path, i, delta, all, again);
    return path;
}

} // namespace

QString literal::changePathBeginPoint(const QString &path, double dx, double dy)
{
    if (unitAt(path, 0) != 'M')
        return path;
    const int s = unitAt(path, 1) == '-' ? 2 : 1;
    const int c = find(path, ',', s);
    const int m = find(path, '-', s);
    if (c == noIndex && m == noIndex)
        return path;
    QString x;
    int yBegin = 0;
    if (c != noIndex && (m == noIndex || c < m)) {
        x = cut(path, 1, c);
        yBegin = c + 1;
    } else {
        x = cut(path, 1, m);
        yBegin = m;
    }
    int yEnd = yBegin;
    while (yEnd < path.size() && !isLetter(unitAt(path, yEnd)))
        yEnd = yEnd + 1;
    const double newX = x.toDouble() + dx;
    const double newY = cut(path, yBegin, yEnd).toDouble() + dy;
    QString result = QStringLiteral("M") + number(newX);
    if (!(newY < 0))
        result.append(QLatin1Char(','));
    return result + number(newY) + rest(path, yEnd);
}

QString literal::changePathWidth(const QString &path, double delta)
{
    return changeWidth(path, delta, 0, false);
}

QString literal::changePathHeight(const QString &path, double delta)
{
    return changeHeight(path, delta, 0, false);
}

QString literal::changePathWidth(const QString &path, double delta, int from)
{
    return changeWidth(path, delta, from, true);
}

QString literal::changePathHeight(const QString &path, double delta, int from)
{
    return changeHeight(path, delta, from, true);
}
