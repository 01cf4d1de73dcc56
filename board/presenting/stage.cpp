#include "presenting/stage.h"

#include "core/commands.h"
#include "core/toolchoice.h"
#include "core/workspace.h"
#include "look/voice.h"
#include "page/pageview.h"
#include "presenting/curtain.h"
#include "presenting/laserpointer.h"
#include "presenting/twinaction.h"

#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <QtGui/QKeyEvent>
#include <QtWidgets/QAction>
#include <QtWidgets/QVBoxLayout>

namespace board {

Stage::Stage(const Workspace *workspace, Commands *commands, ToolChoice *tools, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_commands(commands)
    , m_tools(tools)
    , m_view(new PageView(this))
    , m_curtain(new Curtain(m_view->viewport()))
    , m_laser(new LaserPointer(m_view, tools))
    , m_voice(new Voice(this))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_view);
    setFocusProxy(m_view);
    m_view->setBare(true);
    m_view->installEventFilter(this);
    connect(m_curtain, &Curtain::changed, this, &Stage::tellCurtain);
    addZoom(Command::ZoomIn, [this] { m_view->zoomIn(); });
    addZoom(Command::ZoomOut, [this] { m_view->zoomOut(); });
    addZoom(Command::ActualSize, [this] { m_view->setZoom(1); });
    m_fit = addZoom(Command::FitPage, [this] { m_view->fitPage(); });
    m_fit->setEnabled(false);
    connect(m_view, &PageView::zoomChanged, this, [this] { m_fit->setEnabled(!m_view->isFitted()); });
    connect(m_view, &PageView::toolGivenUp, tools, [tools] { tools->choose(Tool::Select); });
}

/// The commands' own actions zoom the page behind.
template<typename Slot> QAction *Stage::addZoom(Command command, Slot slot)
{
    QAction *action = makeTwin(*m_commands->action(command), this);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, slot);
    addAction(action);
    return action;
}

bool Stage::eventFilter(QObject *, QEvent *event)
{
    return event->type() == QEvent::KeyPress && useKey(*static_cast<QKeyEvent *>(event));
}

/// Beside the commands' keys, those of clickers; arrows move a selected object instead.
bool Stage::useKey(const QKeyEvent &event)
{
    const bool hasSelection = m_view->page() && !m_view->page()->selectedObjects().isEmpty();
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        return !hasSelection && turn(false);
    case Qt::Key_Right:
    case Qt::Key_Down:
        return !hasSelection && turn(true);
    case Qt::Key_PageUp:
        return turn(false);
    case Qt::Key_PageDown:
        return turn(true);
    case Qt::Key_Space:
        return turn(!(event.modifiers() & Qt::ShiftModifier));
    case Qt::Key_Home:
        return run(Command::FirstPage);
    case Qt::Key_End:
        return run(Command::LastPage);
    case Qt::Key_B:
    case Qt::Key_Period:
        m_curtain->setDrawn(!m_curtain->isDrawn());
        return true;
    case Qt::Key_Escape:
        return escape();
    default:
        return false;
    }
}

/// Readers tell the new page by themselves.
bool Stage::turn(bool forwards)
{
    const pagehost::Page *before = m_view->page();
    run(forwards ? Command::NextPage : Command::PreviousPage);
    if (m_view->page() == before)
        m_voice->say(m_workspace->text(forwards ? "IDS_BOARD_NEXT_IS_NONE" : "IDS_BOARD_PREVIOUS_IS_NONE"));
    return true;
}

bool Stage::run(Command command)
{
    m_commands->action(command)->trigger();
    return true;
}

/// Not while it is dragged.
void Stage::tellCurtain()
{
    if (m_isCovered == m_curtain->isDrawn())
        return;
    m_isCovered = m_curtain->isDrawn();
    m_voice->say(m_workspace->text(m_isCovered ? "IDS_BOARD_CURTAIN_DRAWN" : "IDS_BOARD_CURTAIN_OPEN"));
}

/// False while the view has something to take back first.
bool Stage::escape()
{
    if (m_tools->tool() == Tool::Laser) {
        m_tools->choose(Tool::Select);
        return true;
    }
    const pagehost::Page *page = m_view->page();
    if (page && (page->scene()->isBusy() || page->scene()->tool() || !page->selectedObjects().isEmpty()))
        return false;
    Q_EMIT endRequested();
    return true;
}

} // namespace board
