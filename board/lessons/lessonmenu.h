#pragma once

#include <QtCore/QObject>

class QAction;

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

    QAction *record, *pauseRecording, *play, *close, *rename, *cut, *remove;

private:
    void update();

    const Workspace *m_workspace;
    LessonController *m_lessons;
};

} // namespace board
