#pragma once

#include <framework/framework_global.h>

#include <QtCore/QtGlobal>

#include <functional>

namespace pagehost {

/// A number of milliseconds that only increases, from any start.
using MillisecondSource = std::function<qint64()>;

/// A stopwatch that can be set.
class FRAMEWORK_EXPORT LessonClock
{
public:
    /// Stopped at 0. Without a source it runs on the system's steady clock.
    explicit LessonClock(const MillisecondSource &source = {});

    /// Whether time passes.
    bool isRunning() const { return m_running; }
    /// Lets time pass from time() on.
    void run();
    /// Stops at the present time().
    void halt();
    /// Milliseconds.
    qint64 time() const;
    /// Continues from `time` (milliseconds), running or stopped.
    void setTime(qint64 time);
    /// Milliseconds that pass for each one of the source; initially 1. Rates that are not positive are ignored.
    void setRate(double rate);
    /// See setRate().
    double rate() const { return m_rate; }

private:
    MillisecondSource m_source;
    qint64 m_time = 0;  ///< when it was last started or stopped
    qint64 m_since = 0; ///< the source's time then
    double m_rate = 1;
    bool m_running = false;
};

} // namespace pagehost
