#include "presenting/presentation.h"

#include "core/commands.h"
#include "core/toolchoice.h"
#include "core/workspace.h"
#include "look/theme.h"
#include "page/pageview.h"
#include "presenting/fadingdock.h"
#include "presenting/laserpointer.h"
#include "presenting/presentingbar.h"
#include "presenting/stage.h"

#include <pagehost/document.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QAction>
#include <QtWidgets/QHBoxLayout>

namespace board {

namespace {

constexpr int buttonSide = 40;

ScreenPlan presentScreens(const QWidget *window)
{
    QVector<QRect> rects;
    int own = 0;
    const QList<QScreen *> screens = QGuiApplication::screens();
    const QScreen *here = window->windowHandle() ? window->windowHandle()->screen() : nullptr;
    for (const QScreen *screen : screens) {
        if (screen == here)
            own = rects.size();
        rects.append(screen->geometry());
    }
    return planScreens(rects, own);
}

/// Commands whose windows would open behind the presentation, or that concern what it hides.
bool actsWhilePresenting(CommandGroup group)
{
    return group != CommandGroup::File && group != CommandGroup::View && group != CommandGroup::Help;
}

QWidget *makeWindow(QWidget *window, const QString &title, const QRect &place)
{
    auto *shown = new QWidget(window, Qt::Window | Qt::FramelessWindowHint);
    shown->setWindowTitle(title);
    shown->setGeometry(place);
    auto *column = new QVBoxLayout(shown);
    column->setContentsMargins(0, 0, 0, 0);
    return shown;
}

} // namespace

Presentation::Presentation(const Workspace *workspace, Commands *commands, ToolChoice *tools, PageView *view,
                           QWidget *window)
    : QObject(window)
    , m_workspace(workspace)
    , m_commands(commands)
    , m_tools(tools)
    , m_view(view)
    , m_window(window)
{
    new LaserPointer(view, tools);
    tools->offer(Tool::Laser);
    commands->perform(Command::Present, this, [this] { isRunning() ? end() : start(); });
    commands->perform(Command::PresentFromStart, this, [this] {
        m_commands->action(Command::FirstPage)->trigger();
        start();
    });
    connect(view, &PageView::pageShown, this, &Presentation::showPage);
}

void Presentation::start()
{
    start(presentScreens(m_window));
}

void Presentation::start(const ScreenPlan &plan)
{
    if (isRunning())
        return;
    m_view->settle();
    m_shown = makeWindow(m_window, m_commands->name(Command::Present), plan.page);
    m_stage = new Stage(m_commands, m_tools);
    m_shown->layout()->addWidget(m_stage);
    auto *dock = new FadingDock(m_stage->view()->viewport());
    showPage();
    new PresentingBar(m_workspace, *m_commands, m_stage, dock->row(), buttonSide);
    connect(m_stage, &Stage::endRequested, this, &Presentation::end);
    lendKeys(m_shown);
    m_shown->showFullScreen();
    m_shown->activateWindow();
    m_stage->setFocus();
}

/// Keys of commands act in windows that have their actions.
void Presentation::lendKeys(QWidget *shown)
{
    for (const Command command : m_commands->performed()) {
        const CommandFacts &facts = factsOf(command);
        if (facts.scope == KeyScope::Window && actsWhilePresenting(facts.group))
            shown->addAction(m_commands->action(command));
    }
}

void Presentation::showPage()
{
    if (m_stage)
        m_stage->view()->setPage(m_view->page());
}

void Presentation::end()
{
    if (!isRunning())
        return;
    m_stage->view()->settle();
    if (m_tools->tool() == Tool::Laser)
        m_tools->choose(Tool::Select);
    m_shown->hide();
    m_shown->deleteLater();
    m_shown.clear();
    m_stage.clear();
    // The larger view had set its own.
    if (m_view->page() && m_view->page()->document())
        m_view->page()->document()->setZoomRate(m_view->zoom());
    m_window->activateWindow();
    m_view->setFocus();
}

} // namespace board
