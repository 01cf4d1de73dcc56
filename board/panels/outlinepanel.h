#pragma once

#include "panels/panelrefresh.h"

#include <pagehost/page.h>

#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtWidgets/QWidget>

class CBaseObject;
class QLabel;
class QTreeWidgetItem;

namespace board {

class OutlineTree;
class Workspace;

/// Objects and groups of the page as a tree, the topmost first, with eye and lock. Choosing rows selects on the
/// page, dragging them changes order and groups, F2 and a double click rename.
class OutlinePanel : public QWidget
{
    Q_OBJECT

public:
    explicit OutlinePanel(const Workspace *workspace, QWidget *parent = nullptr);

    void setPage(pagehost::Page *page);
    OutlineTree *tree() const { return m_tree; }

private:
    struct Row
    {
        int depth = 0;
        quint32 group = 0;             ///< 0 for an object
        CBaseObject *object = nullptr; ///< null for a group
        QString title;
        bool isVisible = true;
        bool isLocked = false;

        bool operator==(const Row &other) const;
    };

    void refresh();
    void addRows(QVector<Row> &rows, quint32 level, int depth) const;
    void rebuild();
    QTreeWidgetItem *addItem(const Row &row, int index, QTreeWidgetItem *parent);
    quint32 groupOf(const QTreeWidgetItem *item) const;
    void showSelection();
    void scrollToSelection();
    void unfoldAround(const QTreeWidgetItem *item);
    void select();
    void rename(QTreeWidgetItem *item);
    void toggleVisible(QTreeWidgetItem *item);
    void toggleLock(QTreeWidgetItem *item);
    void drop(QTreeWidgetItem *parent, QTreeWidgetItem *below);
    QVector<CBaseObject *> objectsOf(const QTreeWidgetItem *item) const;
    QVector<CBaseObject *> chosenObjects() const;
    bool canChange() const;

    const Workspace *m_workspace;
    QPointer<pagehost::Page> m_page;
    QLabel *m_nothing;
    OutlineTree *m_tree;
    QVector<Row> m_rows;
    QSet<quint32> m_folded;         ///< groups of this page
    QVector<CBaseObject *> m_shown; ///< the selected objects that the tree was scrolled to
    PanelRefresh m_refresh;
};

} // namespace board
