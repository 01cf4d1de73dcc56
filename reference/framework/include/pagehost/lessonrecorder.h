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

/// Notes, with time, what happens on the pages of a document, whoever does it: by hand, by commands, by undo and
/// redo.
///
/// While recording, the lesson is rehearsed: it is played as it grows on a document of its own, and where an object
/// does not come into the state that it has in the recorded document, that state is noted too. So the end of
/// playing is the end of recording, whatever objects record. It costs a copy of the document in memory, and every
/// change a second time.
class FRAMEWORK_EXPORT LessonRecorder : public QObject
{
    Q_OBJECT

public:
    /// The registry makes the objects of the rehearsal and must outlive the recorder.
    explicit LessonRecorder(const ObjectRegistry *registry, QObject *parent = nullptr);
    /// Drops what was being recorded.
    ~LessonRecorder() override;

    /// Where time comes from; for the next recording.
    void setTimeSource(const MillisecondSource &source) { m_source = source; }

    /// Begins with the document as it is. False, and nothing happens, for null and while recording.
    bool start(Document *document);
    /// Stops the time. Changes go on being noted, as if all of them happened at the moment of resume().
    void pause();
    void resume();
    /// The lesson as it would be if it were stopped now; one without start and events when nothing is being
    /// recorded.
    Lesson soFar();
    /// Gives the lesson; one without start and events when nothing was being recorded. Time ends here.
    Lesson stop();

    bool isRecording() const { return m_recording != nullptr; }
    bool isPaused() const;
    /// Time recorded so far, milliseconds, pauses not counted.
    qint64 elapsed() const { return m_clock.time(); }

Q_SIGNALS:
    void recordingChanged(bool recording);
    void pausedChanged(bool paused);

private:
    const ObjectRegistry *m_registry;
    MillisecondSource m_source;
    LessonClock m_clock;
    std::unique_ptr<LessonRecording> m_recording;
};

} // namespace pagehost
