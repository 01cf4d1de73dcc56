#include "lessons/editinglock.h"

#include "page/pageview.h"

#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolBar>

namespace board {

EditingLock::EditingLock(QMainWindow *window, PageView *view)
    : m_window(window)
    , m_view(view)
{
}

void EditingLock::setLocked(bool locked)
{
    for (QAction *title : m_window->menuBar()->actions()) {
        if (!m_spared.contains(title->menu()))
            title->setEnabled(!locked);
    }
    for (QToolBar *bar : m_window->findChildren<QToolBar *>())
        bar->setEnabled(!locked || m_sparedBars.contains(bar));
    for (QDockWidget *panel : m_window->findChildren<QDockWidget *>())
        panel->setEnabled(!locked);
    m_view->setAcceptDrops(!locked);
}

} // namespace board
