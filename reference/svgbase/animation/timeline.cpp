#include "animation/timeline.h"

#include "grammar/inputlimits.h"

#include <QtCore/QHash>

#include <algorithm>

namespace Svg {

namespace {

constexpr ClockTime beforeEverything = -indefiniteTime;

void insertMoment(std::vector<ClockTime> *moments, ClockTime time)
{
    const auto place = std::lower_bound(moments->begin(), moments->end(), time);
    if (place == moments->end() || *place != time)
        moments->insert(place, time);
    if (moments->size() > 2 * size_t(Limits::animationConditions))
        moments->erase(moments->begin());
}

void dropBefore(std::vector<ClockTime> *moments, ClockTime time)
{
    moments->erase(moments->begin(), std::lower_bound(moments->begin(), moments->end(), time));
}

ClockTime firstAfter(const std::vector<ClockTime> &moments, ClockTime time)
{
    const auto found = std::upper_bound(moments.begin(), moments.end(), time);
    return found == moments.end() ? indefiniteTime : *found;
}

} // namespace

void Timeline::add(const AnimationTiming &timing, const QString &id)
{
    Player player;
    player.timing = timing;
    player.id = id;
    m_players.push_back(player);
    m_connected = m_started = false;
}

void Timeline::connectPlayers()
{
    QHash<QString, int> byId;
    for (int i = size() - 1; i >= 0; --i) {
        m_players[size_t(i)].dependents.clear();
        if (!m_players[size_t(i)].id.isEmpty())
            byId.insert(m_players[size_t(i)].id, i);
    }
    const auto connectTo = [&](int dependent, const QVector<TimingCondition> &conditions, bool beginsThen) {
        for (const TimingCondition &condition : conditions) {
            const bool onEnd = condition.kind == TimingCondition::SyncEnd;
            const int source = byId.value(condition.source, -1);
            if (source >= 0 && (onEnd || condition.kind == TimingCondition::SyncBegin))
                m_players[size_t(source)].dependents.push_back({dependent, condition.offset, onEnd, beginsThen});
        }
    };
    for (int i = 0; i < size(); ++i) {
        connectTo(i, m_players[size_t(i)].timing.begins, true);
        connectTo(i, m_players[size_t(i)].timing.ends, false);
    }
    m_connected = true;
}

void Timeline::reset()
{
    if (!m_connected)
        connectPlayers();
    m_events.clear();
    m_news.clear();
    const auto offsets = [](const QVector<TimingCondition> &conditions) {
        std::vector<ClockTime> moments;
        for (const TimingCondition &condition : conditions)
            if (condition.kind == TimingCondition::Offset)
                moments.push_back(condition.offset);
        std::sort(moments.begin(), moments.end());
        moments.erase(std::unique(moments.begin(), moments.end()), moments.end());
        return moments;
    };
    for (Player &player : m_players) {
        player.begins = offsets(player.timing.begins);
        player.ends = offsets(player.timing.ends);
        player.phase = Idle;
        player.played = false;
        player.foretold = player.scheduled = indefiniteTime;
    }
    m_eventsLeft = Limits::animationEvents;
    for (int i = 0; i < size(); ++i)
        plan(i);
    spreadNews();
    m_started = true;
}

void Timeline::schedule(int index, ClockTime time)
{
    Player &player = m_players[size_t(index)];
    if (player.scheduled != indefiniteTime)
        m_events.erase({player.scheduled, index});
    player.scheduled = time;
    if (time != indefiniteTime)
        m_events.insert({time, index});
}

// Moments before the event itself must be announced as soon as the event is known, all others when it happens.
void Timeline::announce(int index, bool end, ClockTime time, bool foretold)
{
    for (const Dependent &dependent : m_players[size_t(index)].dependents)
        if (dependent.onEnd == end && (dependent.offset < 0) == foretold)
            m_news.push_back({dependent.player, added(time, dependent.offset), dependent.beginsThen});
}

void Timeline::spreadNews()
{
    while (!m_news.empty() && m_eventsLeft > 0) {
        const News news = m_news.back();
        m_news.pop_back();
        --m_eventsLeft;
        Player &player = m_players[size_t(news.player)];
        insertMoment(news.begins ? &player.begins : &player.ends, news.time);
        plan(news.player);
    }
}

// The first "end" that is not before the begin; one that ended the previous interval does not end this one, too.
ClockTime Timeline::endFor(const Player &player, ClockTime begin, bool endUsed, bool *possible) const
{
    *possible = true;
    if (!player.timing.hasEnd)
        return player.timing.activeEnd(begin, indefiniteTime);
    const ClockTime end = firstAfter(player.ends, endUsed ? begin : begin - 1);
    *possible = end != indefiniteTime || player.timing.endIsOpen();
    return player.timing.activeEnd(begin, end);
}

bool Timeline::findInterval(Player &player) const
{
    if (player.played && player.timing.restart == AnimationTiming::Never)
        return false;
    ClockTime after = player.played ? player.lastEnd : beforeEverything;
    for (;;) {
        const auto found = std::lower_bound(player.begins.begin(), player.begins.end(), after);
        if (found == player.begins.end())
            return false;
        const ClockTime begin = *found;
        bool possible = false;
        const bool endUsed = player.played && player.lastEnd == begin;
        const ClockTime end = endFor(player, begin, endUsed, &possible);
        if (!possible)
            return false;
        const bool again = player.played && begin == player.lastBegin;
        const bool over = !player.played && end <= 0 && !(begin == 0 && end == 0);
        if (!again && !over) {
            player.begin = begin;
            player.end = end;
            player.endUsed = endUsed;
            return true;
        }
        after = begin + 1;
    }
}

void Timeline::planEnd(Player &player) const
{
    bool possible = false;
    player.end = endFor(player, player.begin, player.endUsed, &possible);
    if (player.timing.restart == AnimationTiming::Always)
        player.end = qMin(player.end, firstAfter(player.begins, player.begin));
}

void Timeline::plan(int index)
{
    Player &player = m_players[size_t(index)];
    if (player.phase == Active) {
        planEnd(player);
        schedule(index, player.end);
        return;
    }
    player.phase = findInterval(player) ? Waiting : Idle;
    schedule(index, player.phase == Waiting ? player.begin : indefiniteTime);
    if (player.phase == Waiting && player.foretold != player.begin) {
        player.foretold = player.begin;
        announce(index, false, player.begin, true);
    }
}

void Timeline::beginNow(int index)
{
    Player &player = m_players[size_t(index)];
    player.phase = Active;
    player.played = true;
    player.lastBegin = player.begin;
    dropBefore(&player.begins, player.begin);
    dropBefore(&player.ends, player.begin);
    plan(index);
    announce(index, false, player.begin, false);
    if (player.end != indefiniteTime)
        announce(index, true, player.end, true);
}

void Timeline::endNow(int index)
{
    Player &player = m_players[size_t(index)];
    player.phase = Idle;
    player.lastEnd = player.end;
    player.foretold = indefiniteTime;
    announce(index, true, player.end, false);
    plan(index);
}

void Timeline::goTo(ClockTime time)
{
    if (!m_started || time < m_now)
        reset();
    else if (m_eventsLeft > 0)
        m_eventsLeft = Limits::animationEvents;
    m_now = time;
    while (!m_events.empty() && m_events.begin()->first <= time && m_eventsLeft > 0) {
        const int index = m_events.begin()->second;
        --m_eventsLeft;
        if (m_players[size_t(index)].phase == Active)
            endNow(index);
        else
            beginNow(index);
        spreadNews();
    }
}

Timeline::State Timeline::state(int index) const
{
    const Player &player = m_players[size_t(index)];
    const bool active = player.phase == Active;
    if (!active && (!player.played || !player.timing.freezes))
        return State();
    const ClockTime elapsed = active ? m_now - player.lastBegin : player.lastEnd - player.lastBegin;
    const ClockTime rounds = player.timing.repeatedDuration;
    const bool over = elapsed >= rounds;
    // "min" may keep an animation active after its last iteration.
    if (active && over && !player.timing.freezes)
        return State();
    State state;
    state.applies = true;
    state.moves = active && !over && player.timing.duration != indefiniteTime;
    state.begin = player.lastBegin;
    state.position = roundPosition(player.timing, qMin(elapsed, rounds), !active || over);
    return state;
}

} // namespace Svg
