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
    const QList<QAction *> titles = m_window->menuBar()->actions();
    for (QAction *title : titles)
        if (!m_spared.contains(title->menu()))
            title->setEnabled(!locked);
    const QList<QToolBar *> bars = m_window->findChildren<QToolBar *>();
    for (QToolBar *bar : bars)
        bar->setEnabled(!locked || m_sparedBars.contains(bar));
    const QList<QDockWidget *> panels = m_window->findChildren<QDockWidget *>();
    for (QDockWidget *panel : panels)
        panel->setEnabled(!locked);
    m_view->setAcceptDrops(!locked);
}

} // namespace board
