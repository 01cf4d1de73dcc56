#pragma once

#include "grammar/clockvalues.h"
#include "tree/attributes.h"

namespace Svg {

/// When one animation element plays, as its attributes say (SMIL 3.0 §5.4).
struct AnimationTiming
{
    enum Restart { Always, WhenNotActive, Never };

    QVector<TimingCondition> begins;
    QVector<TimingCondition> ends;
    /// Whether there is an "end" at all; one whose conditions never occur is not the same as none.
    bool hasEnd = false;
    /// One round; indefinite where no "dur" says otherwise.
    ClockTime duration = indefiniteTime;
    /// All rounds together, before "end", "min" and "max".
    ClockTime repeatedDuration = indefiniteTime;
    ClockTime shortest = 0;
    ClockTime longest = indefiniteTime;
    Restart restart = Always;
    /// Whether the last value stays afterwards.
    bool freezes = false;

    /// When the animation ends that begins at `begin` and is told to end at `end`, which may be indefinite.
    ClockTime activeEnd(ClockTime begin, ClockTime end) const;
    /// Whether "end" has conditions that are not known from the start.
    bool endIsOpen() const;
};

AnimationTiming readTiming(const Attributes &attributes);

/// Where in its rounds an animation is.
struct RoundPosition
{
    qint64 round = 0;
    /// Share of the round that is over, 0 to 1.
    double progress = 0;
};

/// The position after `elapsed` of active time; at the very end of the last round when `atEnd`.
RoundPosition roundPosition(const AnimationTiming &timing, ClockTime elapsed, bool atEnd);

} // namespace Svg
