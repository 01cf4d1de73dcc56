#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

#include <limits>
#include <optional>

namespace Svg {

/// A time of a document's clock, or a duration, in microseconds: sums and multiples of authored times are exact.
/// Always within ±`longestClockTime`, or one of the two values above it.
using ClockTime = qint64;

constexpr ClockTime clockSecond = 1000000;
/// About 31 years; longer times are clamped.
constexpr ClockTime longestClockTime = 1000000000 * clockSecond;
/// Later than any time.
constexpr ClockTime indefiniteTime = std::numeric_limits<ClockTime>::max();

/// Seconds as a time; no value for NaN.
std::optional<ClockTime> clockTime(double seconds);
/// `time` times `factor`, clamped to the longest time; indefinite stays indefinite.
ClockTime multiplied(ClockTime time, double factor);
/// The sum, clamped to the longest time; indefinite when either is.
ClockTime added(ClockTime a, ClockTime b);

/// A clock value (SMIL 3.0 §5.4.1): "02:30:03.5", "02:33", "3.2h", "45min", "30s", "5ms", "12.467"; seconds without
/// a unit. No value for other text.
std::optional<ClockTime> parseClockValue(QStringView text);

/// One item of a "begin" or an "end".
struct TimingCondition
{
    enum Kind {
        /// A time of the document's clock.
        Offset,
        /// The begin or the end of another animation, plus an offset.
        SyncBegin,
        SyncEnd,
        Indefinite,
        /// An event, a key, a date: these never occur here.
        Never
    };
    Kind kind = Never;
    ClockTime offset = 0;
    /// The id of the other animation.
    QString source;
};

/// The items of a "begin" or an "end", separated by semicolons. Invalid items never occur.
QVector<TimingCondition> parseTimingConditions(const QString &text);

} // namespace Svg
