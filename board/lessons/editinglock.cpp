#include "lessons/editinglock.h"

#include "page/pageview.h"

#include <QtWidgets/QMenu>

namespace board {

EditingLock::EditingLock(PageView *view)
    : m_view(view)
{
}

void EditingLock::setLocked(bool locked)
{
    for (QMenu *menu : qAsConst(m_menus))
        menu->menuAction()->setEnabled(!locked);
    for (QWidget *part : qAsConst(m_parts))
        part->setEnabled(!locked);
    m_view->setAcceptDrops(!locked);
}

} // namespace board
