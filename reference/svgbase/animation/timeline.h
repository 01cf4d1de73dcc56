#pragma once

#include "animation/timing.h"
#include "grammar/inputlimits.h"

#include <set>
#include <utility>
#include <vector>

namespace Svg {

/// Begins and ends of a document's animations (SMIL 3.0 §5.4.3). Their intervals are computed in the order of time,
/// so that an animation may begin with or after another, or after itself.
class Timeline
{
public:
    /// State of an animation at a time.
    struct State
    {
        /// Whether it has an effect, playing or frozen.
        bool applies = false;
        /// Whether its value changes with time.
        bool moves = false;
        /// Begin of the interval that the effect belongs to.
        ClockTime begin = 0;
        RoundPosition position;
    };

    /// Appends an animation; conditions of others refer to it by its id.
    void add(const AnimationTiming &timing, const QString &id);
    int size() const { return int(m_players.size()); }

    /// Advances to a moment. Going back starts over.
    void goTo(ClockTime time);
    /// Whether it stopped before the moment because of too many begins and ends.
    bool isExhausted() const { return m_eventsLeft <= 0; }
    /// State of an animation at the present time.
    State state(int animation) const;

private:
    enum Phase { Idle, Waiting, Active };

    /// Another animation that begins or ends with this one.
    struct Dependent
    {
        int player;
        ClockTime offset;
        bool onEnd;
        bool beginsThen;
    };

    struct Player
    {
        AnimationTiming timing;
        QString id;
        std::vector<Dependent> dependents;
        /// Known moments, in order.
        std::vector<ClockTime> begins;
        std::vector<ClockTime> ends;
        Phase phase = Idle;
        ClockTime begin = 0;
        ClockTime end = 0;
        /// Whether the previous interval ended at this begin, by an "end" that doesn't count again.
        bool endUsed = false;
        /// The previous interval; `begin` and `end` are the present or the next one.
        bool played = false;
        ClockTime lastBegin = 0;
        ClockTime lastEnd = 0;
        ClockTime foretold = indefiniteTime;
        ClockTime scheduled = indefiniteTime;
    };

    struct News
    {
        int player;
        ClockTime time;
        bool begins;
    };

    void connectPlayers();
    void reset();
    void announce(int player, bool end, ClockTime time, bool foretold);
    void spreadNews();
    void plan(int player);
    void planEnd(Player &player) const;
    bool findInterval(Player &player) const;
    ClockTime endFor(const Player &player, ClockTime begin, bool endUsed, bool *possible) const;
    void schedule(int player, ClockTime time);
    void beginNow(int player);
    void endNow(int player);

    std::vector<Player> m_players;
    std::vector<News> m_news;
    /// Next event of every animation that has one.
    std::set<std::pair<ClockTime, int>> m_events;
    ClockTime m_now = 0;
    int m_eventsLeft = Limits::animationEvents;
    bool m_started = false;
    bool m_connected = false;
};

} // namespace Svg
