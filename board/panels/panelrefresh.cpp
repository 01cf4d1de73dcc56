#include "panels/panelrefresh.h"

#include <QtCore/QEvent>
#include <QtGui/QRegion>
#include <QtWidgets/QWidget>

namespace board {

PanelRefresh::PanelRefresh(QWidget *panel, const std::function<void()> &work)
    : m_panel(panel)
    , m_work(work)
    , m_turn([this] { refresh(); })
{
    panel->installEventFilter(this);
}

void PanelRefresh::request()
{
    m_isStale = true;
    m_turn.request();
}

void PanelRefresh::refreshNow()
{
    m_isStale = true;
    refresh();
}

void PanelRefresh::finish()
{
    if (m_isStale)
        refresh();
}

void PanelRefresh::refresh()
{
    // A panel behind another one counts as visible: it stands beside the window.
    if (!m_isStale || m_panel->visibleRegion().isEmpty())
        return;
    m_isStale = false;
    m_work();
}

/// A panel that nobody has told that it is in front is painted.
bool PanelRefresh::eventFilter(QObject *watched, QEvent *event)
{
    if (m_isStale && event->type() == QEvent::Paint)
        m_turn.request();
    return QObject::eventFilter(watched, event);
}

} // namespace board
