#pragma once

#include <QtCore/QList>

class QMainWindow;
class QMenu;
class QToolBar;

namespace board {

class PageView;

/// While a lesson is shown, nothing but looking makes sense: menus, with their keys, tool bars and panels are off.
class EditingLock
{
public:
    EditingLock(QMainWindow *window, PageView *view);

    /// A menu or bar that stays usable.
    void spare(QMenu *menu) { m_spared.append(menu); }
    void spare(QToolBar *bar) { m_sparedBars.append(bar); }
    void setLocked(bool locked);

private:
    QMainWindow *m_window;
    PageView *m_view;
    QList<QMenu *> m_spared;
    QList<QToolBar *> m_sparedBars;
};

} // namespace board
