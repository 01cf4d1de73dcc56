#include "commands/contextmenus.h"

#include "commands/menuplan.h"
#include "core/commands.h"
#include "core/workspace.h"
#include "page/pageview.h"

#include <pagehost/pagescene.h>
#include <pagehost/selection.h>

#include <framework/cbaseobject.h>

#include <QtGui/QContextMenuEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QMenu>

namespace board {

namespace {

bool isRightButton(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return static_cast<const QMouseEvent *>(event)->button() == Qt::RightButton;
    default:
        return false;
    }
}

/// Some platforms send it besides the keys, which are a command.
bool isFromKeyboard(const QEvent *event)
{
    return event->type() == QEvent::ContextMenu &&
           static_cast<const QContextMenuEvent *>(event)->reason() == QContextMenuEvent::Keyboard;
}

} // namespace

ContextMenus::ContextMenus(const Workspace *workspace, Commands *commands, PageView *view, QWidget *window)
    : QObject(window)
    , m_workspace(workspace)
    , m_commands(commands)
    , m_view(view)
    , m_object(make(QStringLiteral("objectMenu"), objectMenuPlan(), window))
    , m_page(make(QStringLiteral("pageMenu"), pageMenuPlan(), window))
    , m_thumbnail(make(QStringLiteral("thumbnailMenu"), thumbnailMenuPlan(), window))
{
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    view->installEventFilter(this);
    view->viewport()->installEventFilter(this);
    connect(view, &QWidget::customContextMenuRequested, this, &ContextMenus::openAt);
    commands->perform(Command::ContextMenu, this, [this] { openForSelection(); });
}

QMenu *ContextMenus::make(const QString &name, const MenuPlan &plan, QWidget *window)
{
    auto *menu = new QMenu(window);
    menu->setObjectName(name);
    fillMenu(menu, plan, *m_commands, *m_workspace);
    return menu;
}

void ContextMenus::addThumbnails(QAbstractItemView *list)
{
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list, &QWidget::customContextMenuRequested, this, [this, list](const QPoint &pos) {
        if (list->indexAt(pos).isValid())
            m_thumbnail->popup(list->viewport()->mapToGlobal(pos));
    });
}

bool ContextMenus::eventFilter(QObject *, QEvent *event)
{
    return isRightButton(event) || isFromKeyboard(event);
}

void ContextMenus::openAt(const QPoint &pos)
{
    pagehost::Page *page = m_view->page();
    if (!page || !m_view->isEditable() || page->scene()->isDragging())
        return;
    const QPointF scenePos = m_view->mapToScene(pos);
    CBaseObject *object = page->scene()->gripAt(scenePos).object;
    // Other clicks pass through locked objects.
    if (!object)
        object = page->objectAt(scenePos);
    if (!object)
        page->select({});
    else if (!page->selectedObjects().contains(object))
        page->select(page->unitOf(object));
    (object ? m_object : m_page)->popup(m_view->viewport()->mapToGlobal(pos));
}

/// Below the selection, as far as it is in view.
void ContextMenus::openForSelection()
{
    if (!m_view->page() || !m_view->isEditable() || m_view->page()->scene()->isDragging())
        return;
    const QVector<CBaseObject *> selected = m_view->page()->selectedObjects();
    const QRect shown = m_view->viewport()->rect();
    const QRect box = m_view->mapFromScene(pagehost::boundsOf(selected)).boundingRect() & shown;
    const QPoint pos = selected.isEmpty() || box.isEmpty() ? shown.center() : box.bottomLeft();
    (selected.isEmpty() ? m_page : m_object)->popup(m_view->viewport()->mapToGlobal(pos));
}

} // namespace board
