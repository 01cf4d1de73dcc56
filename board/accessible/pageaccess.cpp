#include "accessible/pageaccess.h"

#include "accessible/objectwords.h"
#include "page/pageview.h"

#include <framework/cbaseobject.h>

namespace board {

PageAccess::PageAccess(PageView *view, PageReader *reader)
    : QAccessibleWidget(view, QAccessible::Canvas)
    , m_reader(reader)
{
}

QString PageAccess::text(QAccessible::Text kind) const
{
    const pagehost::Page *page = m_reader ? m_reader->view()->page() : nullptr;
    if (page && kind == QAccessible::Name)
        return nameOf(*page, m_reader->workspace());
    return QAccessibleWidget::text(kind);
}

QAccessibleInterface *PageAccess::child(int index) const
{
    const QVector<CBaseObject *> objects = m_reader ? m_reader->objects() : QVector<CBaseObject *>();
    if (index < 0 || index >= objects.size())
        return QAccessibleWidget::child(index - objects.size());
    return m_reader->interfaceOf(objects.at(index));
}

int PageAccess::childCount() const
{
    return (m_reader ? m_reader->objects().size() : 0) + QAccessibleWidget::childCount();
}

int PageAccess::indexOfChild(const QAccessibleInterface *child) const
{
    const QVector<CBaseObject *> objects = m_reader ? m_reader->objects() : QVector<CBaseObject *>();
    for (int i = 0; i < objects.size(); ++i)
        if (m_reader->interfaceOf(objects.at(i)) == child)
            return i;
    const int index = QAccessibleWidget::indexOfChild(child);
    return index < 0 ? index : objects.size() + index;
}

/// Bars lie above the objects, these above the empty page.
QAccessibleInterface *PageAccess::childAt(int x, int y) const
{
    QAccessibleInterface *widget = QAccessibleWidget::childAt(x, y);
    const PageView *view = m_reader ? m_reader->view() : nullptr;
    if (!view || !view->page() || (widget && widget->object() != view->viewport()))
        return widget;
    const QPoint pos = view->viewport()->mapFromGlobal(QPoint(x, y));
    QAccessibleInterface *object = m_reader->interfaceOf(view->page()->objectAt(view->mapToScene(pos)));
    return object ? object : widget;
}

QAccessibleInterface *PageAccess::focusChild() const
{
    const bool isHere = m_reader && m_reader->view()->hasFocus();
    QAccessibleInterface *focused = isHere ? m_reader->focused() : nullptr;
    return focused ? focused : QAccessibleWidget::focusChild();
}

} // namespace board
