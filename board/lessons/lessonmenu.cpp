#include "lessons/lessonmenu.h"

#include "core/commands.h"
#include "core/shortcuts.h"
#include "core/workspace.h"
#include "lessons/lessoncontroller.h"
#include "look/icons.h"

#include <QtWidgets/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QShortcut>

namespace board {

LessonMenu::LessonMenu(const Workspace *workspace, Commands *commands, LessonController *lessons, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_lessons(lessons)
{
    const auto perform = [&](Command command, void (LessonController::*work)()) {
        return commands->perform(command, lessons, [=] { (lessons->*work)(); });
    };
    record = perform(Command::Record, &LessonController::recordOrStop);
    pauseRecording = perform(Command::PauseRecording, &LessonController::pauseOrResumeRecording);
    play = perform(Command::PlayLesson, &LessonController::playOrPause);
    close = perform(Command::CloseLesson, &LessonController::close);
    close->setIcon(icon(Icon::Close));
    // The bar has the field for the name.
    rename = commands->perform(Command::RenameLesson);
    cut = perform(Command::CutLesson, &LessonController::cutChosen);
    remove = perform(Command::RemoveLesson, &LessonController::removeChosen);
    makeWays(commands);
    connect(lessons, &LessonController::stateChanged, this, &LessonMenu::update);
    connect(lessons, &LessonController::lessonsChanged, this, &LessonMenu::update);
    connect(lessons, &LessonController::positionChanged, this, [this] {
        cut->setEnabled(m_lessons->canCut());
        renameChapter->setEnabled(m_lessons->isShowing() && m_lessons->chapter() >= 0);
    });
    update();
}

void LessonMenu::makeWays(Commands *commands)
{
    const auto perform = [&](Command command, void (LessonController::*work)()) {
        return commands->perform(command, m_lessons, [lessons = m_lessons, work] { (lessons->*work)(); });
    };
    gestureBack = perform(Command::GestureBack, &LessonController::stepBack);
    gestureForward = perform(Command::GestureForward, &LessonController::stepForward);
    chapterBack = perform(Command::ChapterBack, &LessonController::chapterBack);
    chapterForward = perform(Command::ChapterForward, &LessonController::chapterForward);
    slower = perform(Command::SlowerLesson, &LessonController::playSlower);
    faster = perform(Command::FasterLesson, &LessonController::playFaster);
    takeOver = perform(Command::TakeOver, &LessonController::takeOver);
    takeOver->setIconText(m_workspace->text("IDS_LESSON_TAKE_OVER_SHORT"));
    // The bar has the field for the name of a chapter of a lesson that is shown.
    beginChapter = perform(Command::BeginChapter, &LessonController::beginChapter);
    renameChapter = commands->perform(Command::RenameChapter);
}

QList<QAction *> LessonMenu::ways() const
{
    return {gestureBack, gestureForward, chapterBack, chapterForward, slower, faster, takeOver};
}

void LessonMenu::addKeysTo(QWidget *page) const
{
    page->addActions(ways());
    // Beside the key that plays anywhere.
    auto *space = new QShortcut(Qt::Key_Space, page, nullptr, nullptr, Qt::WidgetShortcut);
    space->setEnabled(false);
    connect(space, &QShortcut::activated, play, &QAction::trigger);
    connect(m_lessons, &LessonController::stateChanged, space,
            [this, space] { space->setEnabled(m_lessons->isShowing()); });
}

void LessonMenu::addHint(QMenu *menu)
{
    menu->addSeparator();
    QAction *hint = menu->addAction(QString());
    hint->setEnabled(false);
    connect(menu, &QMenu::aboutToShow, hint, [this, hint] {
        const QString keys = record->shortcut().toString(QKeySequence::NativeText);
        hint->setText(m_workspace->text("IDS_LESSON_NONE").arg(keys.isEmpty() ? record->iconText() : keys));
        hint->setVisible(m_lessons->names().isEmpty());
    });
}

void LessonMenu::update()
{
    const auto name = [this](QAction *action, const char *textKey, Icon picture) {
        action->setText(m_workspace->text(textKey));
        action->setIcon(icon(picture));
    };
    const bool recording = m_lessons->isRecording();
    const bool paused = m_lessons->state() == LessonController::RecordingPaused;
    const bool playing = m_lessons->isPlaying();
    const bool hasLesson = m_lessons->chosen() >= 0;
    name(record, recording ? "IDS_LESSON_STOP_RECORDING" : "IDS_LESSON_RECORD",
         recording ? Icon::Stop : Icon::Record);
    name(pauseRecording, paused ? "IDS_LESSON_RESUME_RECORDING" : "IDS_LESSON_PAUSE_RECORDING",
         paused ? Icon::Record : Icon::Pause);
    record->setIconText(m_workspace->text(recording ? "IDS_LESSON_STOP_SHORT" : "IDS_LESSON_RECORD_SHORT"));
    name(play, playing ? "IDS_LESSON_PAUSE" : "IDS_LESSON_PLAY", playing ? Icon::Pause : Icon::Play);
    pauseRecording->setEnabled(recording);
    play->setEnabled(hasLesson && !recording);
    close->setEnabled(m_lessons->isShowing());
    rename->setEnabled(hasLesson && !recording);
    cut->setEnabled(m_lessons->canCut());
    remove->setEnabled(hasLesson && !recording);
    beginChapter->setEnabled(recording || m_lessons->isShowing());
    renameChapter->setEnabled(m_lessons->isShowing() && m_lessons->chapter() >= 0);
    const QList<QAction *> shown = ways();
    for (QAction *way : shown)
        way->setEnabled(m_lessons->isShowing());
    for (QAction *action : {record, pauseRecording, play, close, rename, cut, remove, beginChapter, renameChapter})
        describe(action);
    for (QAction *way : shown)
        describe(way);
}

} // namespace board
