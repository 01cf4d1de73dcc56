#include "animation/timing.h"

#include "grammar/numbers.h"

namespace Svg {

namespace {

QString trimmedValue(const Attributes &attributes, const char *name)
{
    return attributes.value(QLatin1String(name)).trimmed();
}

// "indefinite", "media" and invalid text set no bound.
ClockTime boundOf(const Attributes &attributes, const char *name)
{
    return parseClockValue(trimmedValue(attributes, name)).value_or(indefiniteTime);
}

ClockTime repeatedDuration(const Attributes &attributes, ClockTime duration)
{
    const QString count = trimmedValue(attributes, "repeatCount");
    const QString total = trimmedValue(attributes, "repeatDur");
    const std::optional<double> rounds = parseNumber(count);
    const bool hasRounds = count == QLatin1String("indefinite") || (rounds && *rounds > 0);
    const ClockTime bound = boundOf(attributes, "repeatDur");
    const bool hasTotal = total == QLatin1String("indefinite") || (bound != indefiniteTime && bound > 0);
    if (!hasRounds && !hasTotal)
        return duration;
    const ClockTime byRounds = hasRounds && rounds ? multiplied(duration, *rounds) : indefiniteTime;
    return hasTotal && bound > 0 ? qMin(byRounds, bound) : byRounds;
}

AnimationTiming::Restart restartOf(const Attributes &attributes)
{
    const QString text = trimmedValue(attributes, "restart");
    if (text == QLatin1String("never"))
        return AnimationTiming::Never;
    return text == QLatin1String("whenNotActive") ? AnimationTiming::WhenNotActive : AnimationTiming::Always;
}

} // namespace

ClockTime AnimationTiming::activeEnd(ClockTime begin, ClockTime end) const
{
    const ClockTime untilEnd = end == indefiniteTime ? indefiniteTime : end - begin;
    const ClockTime active = qMin(longest, qMax(shortest, qMin(repeatedDuration, untilEnd)));
    return added(begin, active);
}

bool AnimationTiming::endIsOpen() const
{
    return std::any_of(ends.begin(), ends.end(),
                       [](const TimingCondition &condition) { return condition.kind != TimingCondition::Offset; });
}

AnimationTiming readTiming(const Attributes &attributes)
{
    AnimationTiming timing;
    const QString begin = trimmedValue(attributes, "begin");
    const QString end = trimmedValue(attributes, "end");
    if (begin.isEmpty())
        timing.begins = {{TimingCondition::Offset, 0, QString()}};
    else
        timing.begins = parseTimingConditions(begin);
    timing.ends = parseTimingConditions(end);
    timing.hasEnd = !timing.ends.isEmpty();
    const ClockTime duration = boundOf(attributes, "dur");
    timing.duration = duration > 0 ? duration : indefiniteTime;
    timing.repeatedDuration = repeatedDuration(attributes, timing.duration);
    timing.shortest = parseClockValue(trimmedValue(attributes, "min")).value_or(0);
    const ClockTime longest = boundOf(attributes, "max");
    timing.longest = longest > 0 ? longest : indefiniteTime;
    // Contradicting bounds are both ignored (SMIL 3.0 §5.4.3).
    if (timing.longest < timing.shortest) {
        timing.shortest = 0;
        timing.longest = indefiniteTime;
    }
    timing.restart = restartOf(attributes);
    timing.freezes = trimmedValue(attributes, "fill") == QLatin1String("freeze");
    return timing;
}

RoundPosition roundPosition(const AnimationTiming &timing, ClockTime elapsed, bool atEnd)
{
    if (timing.duration == indefiniteTime)
        return RoundPosition();
    const qint64 round = elapsed / timing.duration;
    const ClockTime rest = elapsed % timing.duration;
    if (atEnd && rest == 0 && round > 0)
        return {round - 1, 1};
    return {round, double(rest) / double(timing.duration)};
}

} // namespace Svg
