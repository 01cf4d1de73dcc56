#pragma once

#include "panels/panelrefresh.h"

#include <pagehost/page.h>

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

class QLabel;
class QListWidget;

namespace board {

class Workspace;

/// The objects of the page, the topmost first. Choosing in the list selects on the page.
class OutlinePanel : public QWidget
{
    Q_OBJECT

public:
    explicit OutlinePanel(const Workspace *workspace, QWidget *parent = nullptr);

    void setPage(pagehost::Page *page);
    QListWidget *list() const { return m_list; }

private:
    void refresh();
    void select();

    const Workspace *m_workspace;
    QPointer<pagehost::Page> m_page;
    QLabel *m_nothing;
    QListWidget *m_list;
    PanelRefresh m_refresh;
};

} // namespace board
