#include "lessons/lessoncontroller.h"

#include "core/notices.h"
#include "core/pagecopy.h"
#include "core/workspace.h"

#include <pagehost/commands.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <algorithm>

namespace board {

namespace {

const QString noticeId = QStringLiteral("lessonNotice");

pagehost::Lesson lessonOf(const pagehost::LessonData &data)
{
    pagehost::Lesson lesson;
    lesson.fromDamagedData(data.data);
    return lesson;
}

} // namespace

LessonController::LessonController(Workspace *workspace, Notices *notices, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_notices(notices)
    , m_recorder(&workspace->registry())
    , m_player(&workspace->registry())
{
    connect(workspace, &Workspace::documentReplaced, this, &LessonController::followDocument);
    connect(&m_player, &pagehost::LessonPlayer::playingChanged, this, &LessonController::stateChanged);
    connect(&m_player, &pagehost::LessonPlayer::positionChanged, this, &LessonController::positionChanged);
    connect(&m_player, &pagehost::LessonPlayer::documentReplaced, this, &LessonController::showDocument);
    followDocument();
}

LessonController::State LessonController::state() const
{
    if (m_recorder.isRecording())
        return m_recorder.isPaused() ? RecordingPaused : Recording;
    return m_showing ? Showing : Idle;
}

pagehost::Document *LessonController::shownDocument() const
{
    return m_showing ? m_player.document() : m_workspace->document();
}

/// A recording ends with its document.
void LessonController::followDocument()
{
    m_recorder.stop();
    close();
    connect(m_workspace->document(), &pagehost::Document::lessonsChanged, this, &LessonController::followLessons);
    readLessons();
    m_chosen = m_names.size() - 1;
    outline();
    Q_EMIT lessonsChanged();
    Q_EMIT stateChanged();
}

void LessonController::readLessons()
{
    m_lessons = m_workspace->document()->lessons();
    m_names.clear();
    m_durations.clear();
    for (const pagehost::LessonData &data : qAsConst(m_lessons)) {
        m_names.append(data.name);
        m_durations.append(lessonOf(data).duration);
    }
}

/// The first lesson that is another is the one that was changed, came, or came back.
void LessonController::followLessons()
{
    close();
    const QVector<pagehost::LessonData> before = m_lessons;
    readLessons();
    const auto difference = std::mismatch(before.begin(), before.end(), m_lessons.begin(), m_lessons.end());
    m_chosen = qMin(int(difference.second - m_lessons.begin()), m_lessons.size() - 1);
    outline();
    Q_EMIT lessonsChanged();
}

void LessonController::choose(int lesson)
{
    if (lesson == m_chosen || lesson < 0 || lesson >= m_names.size())
        return;
    close();
    m_chosen = lesson;
    outline();
    Q_EMIT lessonsChanged();
}

pagehost::Lesson LessonController::chosenLesson() const
{
    return m_chosen >= 0 ? lessonOf(m_lessons.at(m_chosen)) : pagehost::Lesson();
}

void LessonController::outline()
{
    const pagehost::Lesson lesson = chosenLesson();
    m_gestures = gesturesOf(lesson);
    m_chapters = chaptersOf(lesson);
}

qint64 LessonController::position() const
{
    if (isRecording())
        return m_recorder.elapsed();
    return m_showing ? m_player.position() : 0;
}

void LessonController::recordOrStop()
{
    if (isRecording()) {
        const pagehost::LessonData lesson = named(m_recorder.stop());
        m_workspace->document()->setUnfinishedLesson({});
        pagehost::addLesson(m_workspace->document(), lesson);
    } else {
        close();
        m_begunChapters = 0;
        m_recorder.start(m_workspace->document());
    }
    Q_EMIT stateChanged();
}

void LessonController::pauseOrResumeRecording()
{
    if (m_recorder.isPaused())
        m_recorder.resume();
    else
        m_recorder.pause();
    Q_EMIT stateChanged();
}

void LessonController::keepSoFar()
{
    pagehost::Document *document = m_workspace->document();
    // In the middle of a drag an object is in a state that it never will be in again.
    if (isRecording() && !document->currentPage()->scene()->isDragging())
        document->setUnfinishedLesson(named(m_recorder.soFar()));
}

pagehost::LessonData LessonController::named(pagehost::Lesson lesson) const
{
    lesson.title = m_workspace->text("IDS_LESSON_NAME").arg(m_lessons.size() + 1);
    return {lesson.title, lesson.toBytes()};
}

bool LessonController::show()
{
    if (m_showing)
        return true;
    if (isRecording() || m_chosen < 0)
        return false;
    const pagehost::LessonData data = m_lessons.at(m_chosen);
    pagehost::Lesson lesson;
    const pagehost::LessonExtent extent = lesson.fromDamagedData(data.data);
    if (extent == pagehost::LessonExtent::Nothing) {
        m_notices->add({m_workspace->text("IDS_LESSON_UNREADABLE").arg(data.name), {}, {}, noticeId});
        return false;
    }
    m_notices->remove(noticeId);
    if (extent == pagehost::LessonExtent::Part)
        m_notices->add({m_workspace->text("IDS_LESSON_PLAYS_IN_PART").arg(data.name), {}, {}, noticeId});
    m_showing = true;
    m_player.setAssets(m_workspace->document()->assets());
    m_player.setLesson(lesson);
    Q_EMIT stateChanged();
    return true;
}

void LessonController::showDocument()
{
    if (!m_showing)
        return;
    connect(m_player.document(), &pagehost::Document::currentPageChanged, this,
            &LessonController::shownPageChanged);
    Q_EMIT shownPageChanged();
}

void LessonController::playOrPause()
{
    if (!show())
        return;
    if (m_player.isPlaying())
        m_player.pause();
    else
        m_player.play();
}

void LessonController::seek(qint64 time)
{
    if (show())
        m_player.seek(time);
}

void LessonController::stepBack()
{
    seek(gestureBefore(m_gestures, position()));
}

void LessonController::stepForward()
{
    seek(gestureAfter(m_gestures, position(), duration()));
}

void LessonController::chapterBack()
{
    seek(chapterBefore(m_chapters, position()));
}

void LessonController::chapterForward()
{
    seek(chapterAfter(m_chapters, position(), duration()));
}

QString LessonController::nextChapterName() const
{
    const int count = isRecording() ? m_begunChapters : m_chapters.size();
    return m_workspace->text("IDS_LESSON_CHAPTER").arg(count + 1);
}

QString LessonController::begunChapter() const
{
    return m_begunChapters > 0 ? m_workspace->text("IDS_LESSON_CHAPTER").arg(m_begunChapters) : QString();
}

void LessonController::beginChapter()
{
    if (!isRecording())
        return;
    const QString name = nextChapterName();
    m_recorder.beginChapter(name);
    ++m_begunChapters;
    Q_EMIT chapterBegun(name);
}

void LessonController::setChapter(qint64 time, const QString &name)
{
    if (isRecording())
        return;
    const qint64 shown = position();
    const bool wasShowing = m_showing;
    if (pagehost::setChapter(m_workspace->document(), m_chosen, time, name.trimmed()) && wasShowing)
        seek(shown);
}

void LessonController::takeOver()
{
    if (!m_showing)
        return;
    const pagehost::Page *page = m_player.document()->currentPage();
    close();
    addPageCopy(m_workspace->document(), *page, m_workspace->registry(), QStringLiteral("IDS_LESSON_TAKE_OVER"));
}

void LessonController::close()
{
    if (!m_showing)
        return;
    m_player.pause();
    m_showing = false;
    Q_EMIT shownPageChanged();
    Q_EMIT positionChanged();
    Q_EMIT stateChanged();
}

void LessonController::setSpeed(double speed)
{
    m_player.setSpeed(speed);
    Q_EMIT stateChanged();
}

void LessonController::playSlower()
{
    const QVector<double> all = speeds();
    setSpeed(all.at(qMax(0, all.indexOf(speed()) - 1)));
}

void LessonController::playFaster()
{
    const QVector<double> all = speeds();
    setSpeed(all.at(qMin(all.size() - 1, all.indexOf(speed()) + 1)));
}

void LessonController::renameChosen(const QString &name)
{
    if (!isRecording() && !name.trimmed().isEmpty())
        pagehost::renameLesson(m_workspace->document(), m_chosen, name.trimmed());
}

void LessonController::removeChosen()
{
    if (!isRecording())
        pagehost::removeLesson(m_workspace->document(), m_chosen);
}

bool LessonController::canCut() const
{
    return m_showing && position() < duration();
}

void LessonController::cutChosen()
{
    if (canCut())
        pagehost::cutLesson(m_workspace->document(), m_chosen, position());
}

} // namespace board
