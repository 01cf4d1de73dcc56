#pragma once

#include "grammar/clockvalues.h"
#include "tree/attributes.h"

namespace Svg {

/// Timing attributes of one animation element (SMIL 3.0 §5.4).
struct AnimationTiming
{
    enum Restart { Always, WhenNotActive, Never };

    QVector<TimingCondition> begins;
    QVector<TimingCondition> ends;
    /// Whether there is an "end" at all; one whose conditions never occur differs from none.
    bool hasEnd = false;
    /// Duration of one iteration; indefinite without "dur".
    ClockTime duration = indefiniteTime;
    /// Duration of all iterations, before "end", "min" and "max" apply.
    ClockTime repeatedDuration = indefiniteTime;
    ClockTime shortest = 0;
    ClockTime longest = indefiniteTime;
    Restart restart = Always;
    /// Whether the last value stays afterwards.
    bool freezes = false;

    /// End of the interval that begins at `begin`, with an "end" at `end`, which may be indefinite.
    ClockTime activeEnd(ClockTime begin, ClockTime end) const;
    /// Whether "end" has conditions that are not known from the start.
    bool endIsOpen() const;
};

AnimationTiming readTiming(const Attributes &attributes);

/// Position of an animation within its iterations.
struct RoundPosition
{
    qint64 round = 0;
    /// Share of the iteration that is over, 0 to 1.
    double progress = 0;
};

/// The position after `elapsed` of active time; at the very end of the last iteration when `atEnd`.
RoundPosition roundPosition(const AnimationTiming &timing, ClockTime elapsed, bool atEnd);

} // namespace Svg
