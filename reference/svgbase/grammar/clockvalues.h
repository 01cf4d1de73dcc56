#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

#include <limits>
#include <optional>

namespace Svg {

/// A moment of a document's clock, or a span of it, in microseconds: sums and multiples of times that authors write
/// are exact. Always within ±`longestClockTime`, or one of the two values above it.
using ClockTime = qint64;

constexpr ClockTime clockSecond = 1000000;
/// About 31 years; longer times are held there.
constexpr ClockTime longestClockTime = 1000000000 * clockSecond;
/// Later than any moment.
constexpr ClockTime indefiniteTime = std::numeric_limits<ClockTime>::max();

/// Seconds as a time; nothing when they are no number.
std::optional<ClockTime> clockTime(double seconds);
/// `time` times `factor`, held within the longest time; indefinite stays so.
ClockTime multiplied(ClockTime time, double factor);
/// The sum, held within the longest time; indefinite when either is.
ClockTime added(ClockTime a, ClockTime b);

/// A clock value (SMIL 3.0 §5.4.1): "02:30:03.5", "02:33", "3.2h", "45min", "30s", "5ms", "12.467"; seconds where
/// no unit is given. Nothing when the text is none of these.
std::optional<ClockTime> parseClockValue(QStringView text);

/// One item of a "begin" or an "end".
struct TimingCondition
{
    enum Kind {
        /// A moment of the document's clock.
        Offset,
        /// The begin or the end of another animation, plus an offset.
        SyncBegin,
        SyncEnd,
        Indefinite,
        /// An event, a key, a date: nothing here ever raises it.
        Never
    };
    Kind kind = Never;
    ClockTime offset = 0;
    /// The id of the other animation.
    QString source;
};

/// The items of a "begin" or an "end", separated by semicolons. Items that break the grammar never occur.
QVector<TimingCondition> parseTimingConditions(const QString &text);

} // namespace Svg
