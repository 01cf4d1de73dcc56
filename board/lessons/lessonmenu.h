#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>

class QAction;
class QMenu;
class QWidget;

namespace board {

class Commands;
class LessonController;
class Workspace;

/// Lesson actions of the menu, the lesson bar and keys.
class LessonMenu : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    LessonMenu(const Workspace *workspace, Commands *commands, LessonController *lessons, QObject *parent);

    /// Shows how to record at the end of `menu` while the board has no lesson.
    void addHint(QMenu *menu);

    /// Gives `page` the keys that act on it while a lesson is shown.
    void addKeysTo(QWidget *page) const;

    QAction *record, *pauseRecording, *play, *close, *rename, *cut, *remove;
    QAction *beginChapter, *renameChapter, *gestureBack, *gestureForward, *chapterBack, *chapterForward, *slower,
        *faster, *takeOver;

private:
    void makeWays(Commands *commands);
    void update();
    QList<QAction *> ways() const;

    const Workspace *m_workspace;
    LessonController *m_lessons;
};

} // namespace board
