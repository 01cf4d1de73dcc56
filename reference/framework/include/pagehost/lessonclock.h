#pragma once

#include <framework/framework_global.h>

#include <QtCore/QtGlobal>

#include <functional>

namespace pagehost {

/// Milliseconds that only grow, from any beginning.
using MillisecondSource = std::function<qint64()>;

/// A stopwatch that can be set.
class FRAMEWORK_EXPORT LessonClock
{
public:
    /// Stands at 0. Without a source it runs on the system's steady clock.
    explicit LessonClock(const MillisecondSource &source = {});

    bool isRunning() const { return m_running; }
    void run();
    void halt();
    /// Milliseconds.
    qint64 time() const;
    /// Running or not, goes on from `time` (milliseconds).
    void setTime(qint64 time);
    /// How many milliseconds pass for one of the source; 1 at first. Rates that are not above 0 are ignored.
    void setRate(double rate);
    double rate() const { return m_rate; }

private:
    MillisecondSource m_source;
    qint64 m_time = 0;  ///< when it last began to run, or stopped
    qint64 m_since = 0; ///< what the source said then
    double m_rate = 1;
    bool m_running = false;
};

} // namespace pagehost
