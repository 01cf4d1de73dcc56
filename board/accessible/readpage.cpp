#include "accessible/readpage.h"

#include "page/pageview.h"

namespace board {

ReadPage::ReadPage(const Workspace *workspace, PageView *view)
    : QObject(view)
    , m_workspace(workspace)
    , m_view(view)
{
}

bool ReadPage::isEditable() const
{
    return m_view->isEditable();
}

bool ReadPage::shows(const CBaseObject *object) const
{
    return m_view->page() && (m_view->page()->contains(object) || object == m_leaving);
}

} // namespace board
