#include "window/shapetool.h"

#include "core/newlook.h"
#include "page/pageview.h"

#include <pagehost/objectregistry.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

namespace board {

ShapeTool::ShapeTool(const pagehost::ObjectRegistry *registry, ToolChoice *tools, const NewLook *look,
                     PageView *view, QObject *parent)
    : QObject(parent)
    , m_registry(registry)
    , m_tools(tools)
    , m_view(view)
    , m_creation(registry)
{
    connect(tools, &ToolChoice::changed, this, &ShapeTool::followChoice);
    connect(&m_creation, &pagehost::CreationTool::finishing, look, &NewLook::giveTo);
    connect(&m_creation, &pagehost::CreationTool::created, this, &ShapeTool::takeMade);
    connect(&m_creation, &pagehost::CreationTool::cancelled, this, &ShapeTool::rest);
    tools->offer(Tool::Shape);
}

/// The choice of the tool may be gone already, so nobody is notified of a shape that still waits.
ShapeTool::~ShapeTool()
{
    disconnect(&m_creation, nullptr, this, nullptr);
}

void ShapeTool::begin(const QString &kindId)
{
    m_creation.cancel();
    if (kindId.isEmpty())
        return;
    m_kindId = kindId;
    m_tools->choose(Tool::Shape);
}

CBaseObject *ShapeTool::place(const QString &kindId, const QPointF &scenePos)
{
    m_creation.cancel();
    return m_view->page() ? m_creation.createAt(m_view->page()->scene(), kindId, scenePos) : nullptr;
}

void ShapeTool::followChoice()
{
    if (m_tools->tool() != Tool::Shape)
        m_creation.cancel();
    else if (!m_creation.isActive())
        wait();
}

/// For the kind drawn last; at first, for any.
void ShapeTool::wait()
{
    const QVector<pagehost::ObjectKind> kinds = m_registry->kinds();
    if (m_kindId.isEmpty() && !kinds.isEmpty())
        m_kindId = kinds.first().id;
    if (m_view->page() && m_creation.begin(m_view->page()->scene(), m_kindId))
        Q_EMIT waitingKindChanged();
    else
        m_tools->choose(Tool::Select);
}

void ShapeTool::rest()
{
    if (m_tools->tool() == Tool::Shape)
        m_tools->choose(Tool::Select);
    Q_EMIT waitingKindChanged();
}

void ShapeTool::takeMade()
{
    m_tools->finish();
    if (m_tools->tool() == Tool::Shape)
        wait();
    else
        Q_EMIT waitingKindChanged();
}

} // namespace board
