#pragma once

#include <pagehost/lesson.h>
#include <pagehost/lessonclock.h>

#include <framework/framework_global.h>

#include <QtCore/QObject>

#include <memory>

namespace pagehost {

class Document;
class LessonRecording;
class ObjectRegistry;

/// Records the changes of a document's pages over time, by hand, by commands, by undo and redo.
///
/// While recording, it rehearses the lesson: it plays the lesson so far on a document of its own, and where an
/// object does not reach the state that it has in the recorded document, it records that state, too. So playing
/// ends where recording ended, whatever objects record. This costs a copy of the document in memory, and every
/// change a second time.
class FRAMEWORK_EXPORT LessonRecorder : public QObject
{
    Q_OBJECT

public:
    /// The registry makes the objects of the rehearsal and must outlive the recorder.
    explicit LessonRecorder(const ObjectRegistry *registry, QObject *parent = nullptr);
    /// Discards a running recording.
    ~LessonRecorder() override;

    /// Sets the source of time for the next recording.
    void setTimeSource(const MillisecondSource &source) { m_source = source; }

    /// Starts with the document's present state. False, without effect, for null and while recording.
    bool start(Document *document);
    /// Stops the time. Changes are still recorded, as if all of them happened at the moment of resume().
    void pause();
    /// Ends pause().
    void resume();
    /// Begins a chapter of that name at this moment; without effect while nothing is being recorded.
    void beginChapter(const QString &name);
    /// The lesson as stop() would return it now; one without start and events when nothing is being recorded.
    Lesson soFar();
    /// Ends the recording and returns the lesson; one without start and events when nothing was being recorded.
    Lesson stop();

    /// True between start() and stop(), pauses included.
    bool isRecording() const { return m_recording != nullptr; }
    /// True between pause() and resume().
    bool isPaused() const;
    /// Time recorded so far, milliseconds without pauses.
    qint64 elapsed() const { return m_clock.time(); }

Q_SIGNALS:
    /// See isRecording().
    void recordingChanged(bool recording);
    /// See isPaused().
    void pausedChanged(bool paused);

private:
    const ObjectRegistry *m_registry;
    MillisecondSource m_source;
    LessonClock m_clock;
    std::unique_ptr<LessonRecording> m_recording;
};

} // namespace pagehost
