#include <pagehost/lessonrecorder.h>

#include <lessons/lessonrecording.h>

namespace pagehost {

LessonRecorder::LessonRecorder(const ObjectRegistry *registry, QObject *parent)
    : QObject(parent)
    , m_registry(registry)
{
}

LessonRecorder::~LessonRecorder() = default;

bool LessonRecorder::start(Document *document)
{
    if (!document || isRecording())
        return false;
    m_clock = LessonClock(m_source);
    m_recording = std::make_unique<LessonRecording>(document, m_registry, m_clock);
    m_clock.run();
    Q_EMIT recordingChanged(true);
    return true;
}

void LessonRecorder::pause()
{
    if (!isRecording() || isPaused())
        return;
    m_recording->settle();
    m_clock.halt();
    Q_EMIT pausedChanged(true);
}

void LessonRecorder::resume()
{
    if (!isPaused())
        return;
    m_recording->settle();
    m_clock.run();
    Q_EMIT pausedChanged(false);
}

void LessonRecorder::beginChapter(const QString &name)
{
    if (isRecording())
        m_recording->beginChapter(name);
}

Lesson LessonRecorder::soFar()
{
    return isRecording() ? m_recording->settled() : Lesson();
}

Lesson LessonRecorder::stop()
{
    if (!isRecording())
        return {};
    Lesson lesson = m_recording->settled();
    const bool wasPaused = isPaused();
    m_recording.reset();
    m_clock.halt();
    if (wasPaused)
        Q_EMIT pausedChanged(false);
    Q_EMIT recordingChanged(false);
    return lesson;
}

bool LessonRecorder::isPaused() const
{
    return isRecording() && !m_clock.isRunning();
}

} // namespace pagehost
