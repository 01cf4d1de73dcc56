#pragma once

#include <pagehost/creation.h>

#include <QtWidgets/QMainWindow>

class QLabel;

namespace board {

class Actions;
class PagePanel;
class PageView;
class PalettePanel;
class StylePanel;
class Workspace;

/// The window: the page in the middle, shapes to the left, look and history to the right, pages below.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The workspace must outlive the window.
    explicit MainWindow(Workspace *workspace);

    PageView *view() const { return m_view; }
    Actions *actions() const { return m_actions; }
    PagePanel *pages() const { return m_pages; }
    PalettePanel *palettePanel() const { return m_palette; }

    /// Waits for the user to draw a shape of this kind; an empty id for none any more.
    void beginCreation(const QString &kindId);

private:
    QDockWidget *addPanel(Qt::DockWidgetArea area, const char *titleKey, QWidget *panel);
    void addPanels();
    void addMenus();
    void addTools();
    void addStatus();
    void connectParts();
    void showCurrentPage();
    void showSelection();
    void describeView();
    void showHint();
    void placeInMiddle(const QString &kindId);
    void exportPages();
    void showAbout();

    Workspace *m_workspace;
    PageView *m_view;
    Actions *m_actions;
    PagePanel *m_pages = nullptr;
    PalettePanel *m_palette = nullptr;
    StylePanel *m_style = nullptr;
    QLabel *m_hint = nullptr;
    QLabel *m_pointer = nullptr;
    QLabel *m_size = nullptr;
    pagehost::CreationTool m_tool;
};

} // namespace board
