#pragma once

#include <QtCore/QObject>

#include <functional>

class QPushButton;

namespace board {

class LessonController;
class Notices;
class Workspace;

/// Offers the page of a lesson that is shown to whoever reaches for a tool: tools work on the board alone.
class TakeOverOffer : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    TakeOverOffer(const Workspace *workspace, Notices *notices, LessonController *lessons, QObject *parent);

    /// Asks in a bar above the page, until it is answered or the lesson closed, and pauses the lesson, so that the
    /// page stays as it was seen. `use` is called once the page has been taken over. An earlier offer goes.
    /// The button that takes the page over; null while no lesson is shown.
    QPushButton *make(const QString &toolName, const std::function<void()> &use);

private:
    const Workspace *m_workspace;
    Notices *m_notices;
    LessonController *m_lessons;
};

} // namespace board
