#pragma once

#include <QtCore/QObject>

class QAction;
class QMenu;

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

    QAction *record, *pauseRecording, *play, *close, *rename, *cut, *remove;

private:
    void update();

    const Workspace *m_workspace;
    LessonController *m_lessons;
};

} // namespace board
