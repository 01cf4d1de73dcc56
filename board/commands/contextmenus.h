#pragma once

#include <QtCore/QObject>
#include <QtCore/QPoint>
#include <QtCore/QVector>

class QAbstractItemView;
class QMenu;
class QWidget;

namespace board {

class Commands;
class PageView;
class Workspace;
struct MenuEntry;

/// Menus of what is under the pointer: an object, the page, a thumbnail of a page. The menu key opens the one of
/// the selection. Whatever is under the pointer is selected first.
class ContextMenus : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this; the menus belong to `window`.
    ContextMenus(const Workspace *workspace, Commands *commands, PageView *view, QWidget *window);

    /// Thumbnails of the pages, in their order.
    void addThumbnails(QAbstractItemView *list);

protected:
    /// The page's objects never see a right button: to them any press is one to select or to drag.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QMenu *make(const QString &name, const QVector<MenuEntry> &plan, QWidget *window);
    void openAt(const QPoint &pos);
    void openForSelection();

    const Workspace *m_workspace;
    Commands *m_commands;
    PageView *m_view;
    QMenu *m_object;
    QMenu *m_page;
    QMenu *m_thumbnail;
};

} // namespace board
