#pragma once

#include "accessible/pagereader.h"

#include <QtWidgets/QAccessibleWidget>

namespace board {

/// The view of a page for screen readers: its children are the page's objects, then the widgets that lie on it.
class PageAccess : public QAccessibleWidget
{
public:
    /// The reader belongs to the view.
    PageAccess(PageView *view, PageReader *reader);

    QString text(QAccessible::Text kind) const override;
    QAccessibleInterface *child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;

private:
    QPointer<PageReader> m_reader;
};

} // namespace board
