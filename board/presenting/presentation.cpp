#include "presenting/presentation.h"

#include "core/commands.h"
#include "core/toolchoice.h"
#include "core/workspace.h"
#include "look/sizes.h"
#include "look/voice.h"
#include "page/pageview.h"
#include "presenting/audiencewindow.h"
#include "presenting/fadingdock.h"
#include "presenting/laserpointer.h"
#include "presenting/presenterwindow.h"
#include "presenting/presentingbar.h"
#include "presenting/stage.h"

#include <pagehost/document.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QAction>
#include <QtWidgets/QVBoxLayout>

namespace board {

namespace {

constexpr PresentingBar::ButtonSizes usualButtons{44, 24};
constexpr PresentingBar::ButtonSizes largeButtons{64, 32};

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
bool actsWhilePresenting(Command command)
{
    const CommandGroup group = factsOf(command).group;
    const bool finds = command == Command::FindText || command == Command::ReplaceText ||
                       command == Command::FindNext || command == Command::FindPrevious;
    return !finds && group != CommandGroup::File && group != CommandGroup::View && group != CommandGroup::Help;
}

void showOver(QWidget *window, const QRect &screen)
{
    window->setGeometry(screen);
    window->showFullScreen();
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
    , m_voice(new Voice(window))
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
    m_stage = new Stage(m_workspace, m_commands, m_tools);
    showPage();
    connect(m_stage, &Stage::endRequested, this, &Presentation::end);
    plan.presenter ? showOnTwoScreens(plan) : showOnOneScreen(plan.page);
    lendKeys(m_stage->window());
    m_stage->window()->activateWindow();
    m_stage->setFocus();
    m_stage->voice()->say(m_workspace->text("IDS_BOARD_PRESENTING_BEGUN"));
}

void Presentation::showOnOneScreen(const QRect &screen)
{
    m_single = new QWidget(m_window, Qt::Window | Qt::FramelessWindowHint);
    m_single->setWindowTitle(m_commands->name(Command::Present));
    auto *column = new QVBoxLayout(m_single);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_stage);
    auto *dock = new FadingDock(m_stage->view()->viewport());
    auto *bar = new PresentingBar(m_workspace, *m_commands, m_stage, dock->row(),
                                  areSizesLarge() ? largeButtons : usualButtons);
    bar->addEnd(m_workspace);
    showOver(m_single, screen);
}

void Presentation::showOnTwoScreens(const ScreenPlan &plan)
{
    m_audience = new AudienceWindow(m_stage, m_tools, m_window);
    m_presenter = new PresenterWindow(m_workspace, *m_commands, m_stage, m_window);
    for (QWidget *window : {static_cast<QWidget *>(m_audience), static_cast<QWidget *>(m_presenter)})
        window->setWindowTitle(m_commands->name(Command::Present));
    showOver(m_audience, plan.page);
    showOver(m_presenter, *plan.presenter);
}

/// Keys of commands act in windows that have their actions.
void Presentation::lendKeys(QWidget *shown)
{
    const QVector<Command> performed = m_commands->performed();
    for (const Command command : performed)
        if (factsOf(command).scope == KeyScope::Window && actsWhilePresenting(command))
            shown->addAction(m_commands->action(command));
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
    for (QWidget *window :
         {m_single.data(), static_cast<QWidget *>(m_presenter), static_cast<QWidget *>(m_audience)}) {
        if (!window)
            continue;
        window->hide();
        window->deleteLater();
    }
    m_single.clear();
    m_presenter.clear();
    m_audience.clear();
    m_stage.clear();
    // The larger view had set its own.
    if (m_view->page() && m_view->page()->document())
        m_view->page()->document()->setZoomRate(m_view->zoom());
    m_window->activateWindow();
    m_view->setFocus();
    m_voice->say(m_workspace->text("IDS_BOARD_PRESENTING_ENDED"));
}

} // namespace board
