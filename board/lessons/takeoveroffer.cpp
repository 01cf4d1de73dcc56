#include "lessons/takeoveroffer.h"

#include "core/notices.h"
#include "core/workspace.h"
#include "lessons/lessoncontroller.h"

#include <QtWidgets/QPushButton>

namespace board {

namespace {

const QString offerId = QStringLiteral("takeOverNotice");

} // namespace

TakeOverOffer::TakeOverOffer(const Workspace *workspace, Notices *notices, LessonController *lessons,
                             QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_notices(notices)
    , m_lessons(lessons)
{
    connect(lessons, &LessonController::stateChanged, this, [this] {
        if (!m_lessons->isShowing())
            m_notices->remove(offerId);
    });
}

QPushButton *TakeOverOffer::make(const QString &toolName, const std::function<void()> &use)
{
    if (!m_lessons->isShowing())
        return nullptr;
    if (m_lessons->isPlaying())
        m_lessons->playOrPause();
    const auto takeOver = [this, use] {
        m_lessons->takeOver();
        use();
    };
    const QWidget *bar = m_notices->add({m_workspace->text("IDS_LESSON_TOOLS_WAIT").arg(toolName),
                                         {},
                                         {{m_workspace->text("IDS_LESSON_TAKE_OVER_SHORT"), takeOver}},
                                         offerId});
    return bar->findChild<QPushButton *>();
}

} // namespace board
