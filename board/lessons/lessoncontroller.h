#pragma once

#include "lessons/lessonoutline.h"

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
    /// As far as it can be read; empty when there is none.
    pagehost::Lesson chosenLesson() const;
    /// Of the chosen lesson.
    QVector<Gesture> gestures() const { return m_gestures; }
    QVector<Chapter> chapters() const { return m_chapters; }
    /// Index of the chapter that is shown; -1 before the first.
    int chapter() const { return chapterAt(m_chapters, position()); }
    /// Milliseconds: of the recording, else of the lesson.
    qint64 position() const;
    qint64 duration() const { return m_durations.value(m_chosen); }

    /// Begins a lesson, or ends the one that is being recorded.
    void recordOrStop();
    void pauseOrResumeRecording();
    void playOrPause();
    /// Shows the chosen lesson at this moment, in milliseconds.
    void seek(qint64 time);
    /// @name From the moment that is shown to another one
    /// @{
    void stepBack();
    void stepForward();
    void chapterBack();
    void chapterForward();
    /// @}
    /// While recording a chapter begins at this moment, with a number for a name.
    void beginChapter();
    /// Of the recording; empty before the first.
    QString begunChapter() const;
    /// The name of the next chapter until somebody has another one.
    QString nextChapterName() const;
    /// Has a chapter begin there in the chosen lesson, milliseconds, or gives the one that begins there another
    /// name; without a name it goes. What is shown stays.
    void setChapter(qint64 time, const QString &name);
    /// Shows the document again, with a copy of the lesson's page after the current one.
    void takeOver();
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
    /// The speeds to choose from, in order.
    static QVector<double> speeds() { return {0.5, 1, 1.5, 2, 4}; }
    void playSlower();
    void playFaster();
    /// Has what is being recorded saved with the document, as far as it goes.
    void keepSoFar();

Q_SIGNALS:
    void stateChanged();
    void lessonsChanged();
    void positionChanged();
    /// While recording.
    void chapterBegun(const QString &name);
    /// shownDocument() or its current page is another.
    void shownPageChanged();

private:
    void followDocument();
    void readLessons();
    void outline();
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
    QVector<Gesture> m_gestures;
    QVector<Chapter> m_chapters;
    int m_begunChapters = 0; ///< of the recording
    bool m_showing = false;
};

} // namespace board
