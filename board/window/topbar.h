#pragma once

#include "look/iconnames.h"

#include <QtCore/QVector>
#include <QtWidgets/QWidget>

class QAction;
class QHBoxLayout;
class QLabel;
class QMenu;
class QMenuBar;
class QToolButton;

namespace board {

class Actions;
class BarButton;
class PageView;
class Workspace;
class ZoomControl;

/// The bar at the top of the window: menus, whether all is saved, pages, zoom, and what is done with all of it.
///
/// Where it is too narrow, the menus go into one button, the saved state becomes a dot, commands lose their texts
/// and the zoom its steps, in that order. Together with the tools, it begins with less, and switches go last.
class TopBar : public QWidget
{
    Q_OBJECT

public:
    /// All must outlive this.
    TopBar(Workspace *workspace, const Actions *actions, PageView *view, QWidget *parent = nullptr);

    QMenuBar *menus() const { return m_menus; }
    QMenu *addMenu(const QString &title);
    /// Adds a button with the action's short text, which is left out where there is no room.
    void addCommand(QAction *action);
    /// Adds such a button that stands out, with a picture of its own.
    void addPrimary(QAction *action, Icon picture);
    /// Adds a button with the action's picture only.
    void addSwitch(QAction *action);
    /// Adds a button beside the number of the page.
    void addPageSwitch(QAction *action);
    /// The part that turns pages.
    QWidget *pages() const { return m_pages; }
    void showSaved(bool isSaved, bool hasFile);
    /// Has the tools in the middle, as the only bar of the window. It lies at `edge`.
    void takeTools(QWidget *tools, Qt::Edge edge);
    /// Gives the tools to the caller's layout.
    void giveTools();
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void addPages(const Actions &actions);
    void addLine(QWidget *parent);
    void followDocument();
    void showPage();
    void fold();
    void applyFolds(int folds);
    void measure();
    int firstFold() const;
    int lastFold() const;
    int barHeight() const;
    void applyHeight();

    Workspace *m_workspace;
    QHBoxLayout *m_row;
    QMenuBar *m_menus;
    QMenu *m_allMenus;
    BarButton *m_menuButton;
    QLabel *m_saved;
    QLabel *m_dot;
    QWidget *m_pages;
    QLabel *m_pageNumber;
    ZoomControl *m_zoom;
    QWidget *m_tools = nullptr; ///< null while they have a bar of their own
    Qt::Edge m_edge = Qt::TopEdge;
    QVector<BarButton *> m_commands;
    QVector<QToolButton *> m_switches;
    QVector<int> m_widths; ///< that are needed with so many folds
    int m_leastWidth = 0;
    bool m_showsSaved = false;
};

} // namespace board
