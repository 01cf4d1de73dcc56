#pragma once

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
class PageView;
class Workspace;
class ZoomControl;

/// The bar at the top of the window: menus, whether all is saved, pages, zoom, and what is done with all of it.
///
/// Where it is too narrow, the menus go into one button, the saved state becomes a dot, commands lose their texts
/// and the zoom its steps, in that order.
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
    /// Adds a button with the action's picture only.
    void addSwitch(QAction *action);
    /// Adds a button beside the number of the page.
    void addPageSwitch(QAction *action);
    /// The part that turns pages.
    QWidget *pages() const { return m_pages; }
    void showSaved(bool isSaved, bool hasFile);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void addPages(const Actions &actions);
    void addLine(QWidget *parent);
    void followDocument();
    void showPage();
    void fold();
    void applyFolds(int folds);
    void measure();

    Workspace *m_workspace;
    QHBoxLayout *m_row;
    QMenuBar *m_menus;
    QMenu *m_allMenus;
    QToolButton *m_menuButton;
    QLabel *m_saved;
    QLabel *m_dot;
    QWidget *m_pages;
    QLabel *m_pageNumber;
    ZoomControl *m_zoom;
    QVector<QToolButton *> m_commands;
    QVector<int> m_widths; ///< that are needed with so many folds
    bool m_showsSaved = false;
};

} // namespace board
