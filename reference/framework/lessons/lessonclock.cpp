#include <pagehost/lessonclock.h>

#include <QtCore/QElapsedTimer>

#include <cmath>

namespace pagehost {

namespace {

MillisecondSource steadySource()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] { return timer.elapsed(); };
}

} // namespace

LessonClock::LessonClock(const MillisecondSource &source)
    : m_source(source ? source : steadySource())
{
}

void LessonClock::run()
{
    setTime(time());
    m_running = true;
}

void LessonClock::halt()
{
    setTime(time());
    m_running = false;
}

qint64 LessonClock::time() const
{
    return m_running ? m_time + qRound64(double(qMax<qint64>(0, m_source() - m_since)) * m_rate) : m_time;
}

void LessonClock::setRate(double rate)
{
    if (!(rate > 0) || !std::isfinite(rate))
        return;
    setTime(time());
    m_rate = rate;
}

void LessonClock::setTime(qint64 time)
{
    m_time = time;
    m_since = m_source();
}

} // namespace pagehost
