#include "core/snapactions.h"

#include "core/commands.h"
#include "core/windowmemory.h"
#include "page/pageview.h"

#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <QtWidgets/QAction>

namespace board {

namespace {

/// Of the lines of the grid, scene units; as on squared paper.
constexpr double gridDistance = 32;

} // namespace

SnapActions::SnapActions(Commands *commands, PageView *view, QObject *parent)
    : QObject(parent)
    , m_commands(commands)
    , m_view(view)
{
    QAction *snapping = commands->perform(Command::Snapping);
    snapping->setChecked(remembersSnapping());
    connect(snapping, &QAction::toggled, this, [this](bool on) {
        rememberSnapping(on);
        apply();
    });
    QAction *grid = commands->perform(Command::Grid);
    grid->setChecked(remembersGrid());
    connect(grid, &QAction::toggled, this, [this](bool on) {
        rememberGrid(on);
        apply();
    });
    connect(view, &PageView::pageShown, this, &SnapActions::apply);
    apply();
}

void SnapActions::apply()
{
    if (!m_view->page())
        return;
    pagehost::PageScene *scene = m_view->page()->scene();
    scene->setSnapping(m_commands->action(Command::Snapping)->isChecked());
    scene->setGrid(m_commands->action(Command::Grid)->isChecked() ? gridDistance : 0);
}

} // namespace board
