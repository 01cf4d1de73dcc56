#include "grammar/clockvalues.h"

#include "grammar/inputlimits.h"
#include "grammar/numbers.h"

#include <QtCore/QList>
#include <QtCore/QtMath>

namespace Svg {

namespace {

struct Metric
{
    QLatin1String name;
    double seconds;
};

const Metric metrics[] = {
    {QLatin1String("h"), 3600},   {QLatin1String("min"), 60}, {QLatin1String("s"), 1},
    {QLatin1String("ms"), 0.001}, {QLatin1String(""), 1},
};

// Rejects "1e3": a clock value has only digits and one dot.
bool isPlainNumber(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) {
        return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('.');
    });
}

std::optional<double> plainNumber(QStringView text)
{
    if (text.isEmpty() || !isPlainNumber(text) || text.back() == QLatin1Char('.'))
        return std::nullopt;
    return parseNumber(text);
}

// "02:30:03.5" and "02:33": all parts except the first go up to 59, and only the last has a fraction.
std::optional<double> clockSeconds(QStringView text)
{
    const auto parts = text.split(QLatin1Char(':'));
    if (parts.size() > 3)
        return std::nullopt;
    double seconds = 0;
    for (int i = 0; i < parts.size(); ++i) {
        const std::optional<double> value = plainNumber(parts.at(i));
        const bool last = i == parts.size() - 1;
        if (!value || (i > 0 && *value >= 60) || (!last && parts.at(i).contains(QLatin1Char('.'))))
            return std::nullopt;
        seconds = seconds * 60 + *value;
    }
    return seconds;
}

std::optional<double> metricSeconds(QStringView text)
{
    qsizetype end = 0;
    while (end < text.size() && isPlainNumber(text.mid(end, 1)))
        ++end;
    const std::optional<double> value = plainNumber(text.left(end));
    if (!value)
        return std::nullopt;
    for (const Metric &metric : metrics)
        if (text.mid(end) == metric.name)
            return *value * metric.seconds;
    return std::nullopt;
}

std::optional<ClockTime> signedClockValue(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    const bool negative = trimmed.startsWith(QLatin1Char('-'));
    const bool hasSign = negative || trimmed.startsWith(QLatin1Char('+'));
    const std::optional<ClockTime> time = parseClockValue(hasSign ? trimmed.mid(1) : trimmed);
    return time && negative ? -*time : time;
}

// In an id a backslash escapes the next character, so that "a\-b.begin" names "a-b".
struct SyncBase
{
    QString source;
    QStringView rest;
};

SyncBase splitAtDot(QStringView text)
{
    SyncBase result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('\\') && i + 1 < text.size()) {
            result.source += text.at(++i);
        } else if (text.at(i) == QLatin1Char('.')) {
            result.rest = text.mid(i + 1);
            return result;
        } else {
            result.source += text.at(i);
        }
    }
    return SyncBase();
}

TimingCondition syncCondition(QStringView text)
{
    const SyncBase base = splitAtDot(text);
    const bool atBegin = base.rest.startsWith(QLatin1String("begin"));
    if (!atBegin && !base.rest.startsWith(QLatin1String("end")))
        return TimingCondition();
    const QStringView rest = base.rest.mid(atBegin ? 5 : 3).trimmed();
    if (!rest.isEmpty() && rest.front() != QLatin1Char('+') && rest.front() != QLatin1Char('-'))
        return TimingCondition();
    const std::optional<ClockTime> offset = rest.isEmpty() ? std::optional<ClockTime>(0) : signedClockValue(rest);
    if (!offset || base.source.isEmpty())
        return TimingCondition();
    return {atBegin ? TimingCondition::SyncBegin : TimingCondition::SyncEnd, *offset, base.source};
}

TimingCondition timingCondition(QStringView text)
{
    if (text == QLatin1String("indefinite"))
        return {TimingCondition::Indefinite, 0, QString()};
    if (const std::optional<ClockTime> offset = signedClockValue(text))
        return {TimingCondition::Offset, *offset, QString()};
    return syncCondition(text);
}

} // namespace

std::optional<ClockTime> clockTime(double seconds)
{
    if (qIsNaN(seconds))
        return std::nullopt;
    const double longest = double(longestClockTime / clockSecond);
    return ClockTime(std::llround(qBound(-longest, seconds, longest) * clockSecond));
}

ClockTime multiplied(ClockTime time, double factor)
{
    if (time == indefiniteTime || !qIsFinite(factor))
        return indefiniteTime;
    const double product = double(time) * factor;
    return ClockTime(std::llround(qBound(-double(longestClockTime), product, double(longestClockTime))));
}

ClockTime added(ClockTime a, ClockTime b)
{
    if (a == indefiniteTime || b == indefiniteTime)
        return indefiniteTime;
    return qBound(-longestClockTime, a + b, longestClockTime);
}

std::optional<ClockTime> parseClockValue(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    const std::optional<double> seconds =
        trimmed.contains(QLatin1Char(':')) ? clockSeconds(trimmed) : metricSeconds(trimmed);
    return seconds ? clockTime(*seconds) : std::nullopt;
}

QVector<TimingCondition> parseTimingConditions(const QString &text)
{
    QVector<TimingCondition> conditions;
    const auto items = QStringView(text).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QStringView item : items) {
        if (conditions.size() == Limits::animationConditions)
            break;
        conditions.append(timingCondition(item.trimmed()));
    }
    return conditions;
}

} // namespace Svg
