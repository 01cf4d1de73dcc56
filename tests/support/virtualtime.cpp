#include "support/virtualtime.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>

#include <atomic>
#include <ctime>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr long long nanosecondsPerMillisecond = 1000000;
constexpr long long nanosecondsPerMicrosecond = 1000;
constexpr long long nanosecondsPerSecond = 1000000000;
constexpr int longestPassage = 60000; ///< milliseconds
/// An interval of 0 always has events; this many turns are more than any chain of them takes.
constexpr int mostTurns = 50;

timespec realTime(clockid_t clock)
{
    timespec time{};
    syscall(SYS_clock_gettime, clock, &time);
    return time;
}

std::atomic<long long> passed{0}; ///< nanoseconds

/// Begins at a whole second, since Qt's coarse timers round to milliseconds of a second, and near the real time,
/// since the kernel's waits with an end compare with that.
timespec virtualTime()
{
    static const time_t begin = realTime(CLOCK_MONOTONIC).tv_sec;
    timespec time{};
    time.tv_sec = begin + time_t(passed / nanosecondsPerSecond);
    time.tv_nsec = long(passed % nanosecondsPerSecond);
    return time;
}

} // namespace

/// Takes the place of the C library's function in the whole program, Qt's libraries included.
extern "C" __attribute__((visibility("default"))) int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    if (clock != CLOCK_MONOTONIC)
        return int(syscall(SYS_clock_gettime, clock, time));
    *time = virtualTime();
    return 0;
}

void support::spend(int microseconds)
{
    passed += microseconds * nanosecondsPerMicrosecond;
}

void support::deliverEvents()
{
    QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    for (int turn = 0; turn < mostTurns && dispatcher->processEvents(QEventLoop::AllEvents); ++turn)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void support::pass(int milliseconds)
{
    deliverEvents();
    for (int i = 0; i < milliseconds; ++i) {
        passed += nanosecondsPerMillisecond;
        deliverEvents();
    }
}

bool support::passUntil(const std::function<bool()> &condition)
{
    deliverEvents();
    for (int i = 0; i < longestPassage && !condition(); ++i)
        pass(1);
    return condition();
}
