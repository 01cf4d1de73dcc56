#include <pagehost/lessonplayer.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <host/objectpage.h>
#include <lessons/lessonstage.h>

namespace pagehost {

namespace {

constexpr int tickMilliseconds = 16;
/// Of real time.
constexpr int highlightMilliseconds = 700;

} // namespace

LessonPlayer::LessonPlayer(const ObjectRegistry *registry, QObject *parent)
    : QObject(parent)
    , m_registry(registry)
{
    m_timer.setInterval(tickMilliseconds);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &LessonPlayer::tick);
}

LessonPlayer::~LessonPlayer() = default;

Document *LessonPlayer::document() const
{
    return m_stage ? m_stage->document() : nullptr;
}

void LessonPlayer::setLesson(const Lesson &lesson)
{
    stopPlaying();
    const double speed = m_clock.rate();
    m_clock = LessonClock(m_source);
    m_clock.setRate(speed);
    m_lesson = lesson;
    showStart();
    setPosition(0);
}

void LessonPlayer::play()
{
    if (!m_stage || isPlaying())
        return;
    if (m_position >= duration())
        seek(0);
    m_clock.setTime(m_position);
    m_clock.run();
    m_timer.start();
    Q_EMIT playingChanged(true);
}

void LessonPlayer::pause()
{
    if (isPlaying()) {
        tick();
        stopPlaying();
    }
}

void LessonPlayer::setSpeed(double speed)
{
    m_clock.setRate(speed);
}

void LessonPlayer::stopPlaying()
{
    if (!isPlaying())
        return;
    m_timer.stop();
    m_clock.halt();
    Q_EMIT playingChanged(false);
}

void LessonPlayer::seek(qint64 time)
{
    if (!m_stage)
        return;
    const qint64 target = qBound<qint64>(0, time, duration());
    pointOut(nullptr);
    if (target < m_position) {
        // Seek by playing from the start: objects keep more of their past than they save, so no saved state
        // replaces it.
        showStart();
    }
    advance(target);
    m_clock.setTime(target);
    setPosition(target);
}

void LessonPlayer::playToEnd()
{
    if (!m_stage)
        return;
    stopPlaying();
    seek(duration());
    Q_EMIT finished();
}

void LessonPlayer::tick()
{
    const qint64 time = qMin(m_clock.time(), duration());
    CBaseObject *changed = advance(time);
    if (changed) {
        pointOut(changed);
        m_highlightEnd = time + qRound64(highlightMilliseconds * speed());
    } else if (time >= m_highlightEnd) {
        pointOut(nullptr);
    }
    setPosition(time);
    if (time < duration() || !isPlaying())
        return;
    pointOut(nullptr);
    stopPlaying();
    Q_EMIT finished();
}

/// Applies the events up to `time`. Returns the object that changed last and still exists.
CBaseObject *LessonPlayer::advance(qint64 time)
{
    QPointer<CBaseObject> changed;
    while (m_played < m_lesson.events.size() && m_lesson.events[m_played].time <= time) {
        if (CBaseObject *object = m_stage->perform(m_lesson.events[m_played].step))
            changed = object;
        ++m_played;
    }
    return changed;
}

void LessonPlayer::showStart()
{
    auto stage = std::make_unique<LessonStage>(m_registry);
    stage->document()->assets() = m_assets;
    for (const LessonStep &step : qAsConst(m_lesson.start))
        stage->perform(step);
    m_highlighted = nullptr;
    m_played = 0;
    m_stage.swap(stage);
    Q_EMIT documentReplaced();
}

void LessonPlayer::setPosition(qint64 time)
{
    m_position = time;
    Q_EMIT positionChanged(time);
}

void LessonPlayer::pointOut(CBaseObject *object)
{
    const Page *page = object ? pageOf(*object) : nullptr;
    if (m_highlighted && (!page || page->scene() != m_highlighted))
        m_highlighted->setHighlight(nullptr);
    m_highlighted = page ? page->scene() : nullptr;
    if (m_highlighted)
        m_highlighted->setHighlight(object);
}

} // namespace pagehost
