#pragma once

#include <pagehost/document.h>
#include <pagehost/lessonplayer.h>
#include <pagehost/lessonrecorder.h>

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QVector>

namespace board {

class Notices;
class Workspace;

/// The lessons of the document: records them, keeps them with it, and shows them in place of its pages.
class LessonController : public QObject
{
    Q_OBJECT

public:
    enum State {
        Idle,
        Recording,
        RecordingPaused,
        Showing ///< a lesson, playing or not, instead of the document
    };

    /// All must outlive this.
    LessonController(Workspace *workspace, Notices *notices, QObject *parent);

    State state() const;
    bool isRecording() const { return m_recorder.isRecording(); }
    bool isShowing() const { return m_showing; }
    bool isPlaying() const { return m_player.isPlaying(); }
    /// The document that the page view shows: the workspace's, or that of the lesson.
    pagehost::Document *shownDocument() const;

    /// Names of the document's lessons, and how long each is (milliseconds).
    QStringList names() const { return m_names; }
    QVector<qint64> durations() const { return m_durations; }
    /// The lesson that is played; -1 when there is none.
    int chosen() const { return m_chosen; }
    void choose(int lesson);
    /// Milliseconds; where something happens in the chosen lesson.
    QVector<qint64> moments() const;
    /// Milliseconds: of the recording, else of the lesson.
    qint64 position() const;
    qint64 duration() const { return m_durations.value(m_chosen); }

    /// Begins a lesson, or ends the one that is being recorded.
    void recordOrStop();
    void pauseOrResumeRecording();
    void playOrPause();
    /// Shows the chosen lesson at this moment, in milliseconds.
    void seek(qint64 time);
    /// Shows the document again.
    void close();
    void removeChosen();
    /// Takes away what comes after the moment that is shown, and shows the document again.
    void cutChosen();
    bool canCut() const;
    /// Takes another name for the chosen lesson; spaces around it are dropped, and an empty one is ignored.
    void renameChosen(const QString &name);
    /// Milliseconds of a lesson for one of real time.
    double speed() const { return m_player.speed(); }
    void setSpeed(double speed);
    /// Has what is being recorded saved with the document, as far as it goes.
    void keepSoFar();

Q_SIGNALS:
    void stateChanged();
    void lessonsChanged();
    void positionChanged();
    /// shownDocument() or its current page is another.
    void shownPageChanged();

private:
    void followDocument();
    void readLessons();
    void followLessons();
    pagehost::LessonData named(pagehost::Lesson lesson) const;
    bool show();
    void showDocument();

    Workspace *m_workspace;
    Notices *m_notices;
    pagehost::LessonRecorder m_recorder;
    pagehost::LessonPlayer m_player;
    QVector<pagehost::LessonData> m_lessons; ///< of the document
    QStringList m_names;
    QVector<qint64> m_durations;
    int m_chosen = -1;
    bool m_showing = false;
};

} // namespace board
