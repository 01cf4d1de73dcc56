#pragma once

#include "core/onceperturn.h"
#include "lessons/editinglock.h"

#include <QtWidgets/QMainWindow>

class QMimeData;
class QBoxLayout;
class QMenu;
class QMenuBar;

namespace pagehost {
class AnimationPlayer;
} // namespace pagehost

namespace board {

class Actions;
class ClipboardController;
class ClipboardMenu;
class Commands;
class Dock;
class DocumentController;
class DocumentMenu;
class Drawer;
class FindBar;
class HintPill;
class LessonBar;
class LessonController;
class LessonMenu;
class NewLook;
class Notices;
class ObjectPanel;
class OutlinePanel;
class PagePanel;
class PenOptions;
class PageView;
class Presentation;
class PalettePanel;
class PropertyPanel;
class Recovery;
class ScreenReading;
class SettingsPanel;
class ShapeTool;
class Shelf;
class SidePanel;
class ToolChoice;
class ToolSettings;
class TopBar;
class Worksheets;
class Workspace;

/// The window: the page with a bar above it and tools at one of its edges. Shapes and the panel open over it or,
/// pinned, beside it; pages and lessons below it.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The workspace must outlive the window.
    explicit MainWindow(Workspace *workspace);

    PageView *view() const { return m_view; }
    Commands *commands() const { return m_commands; }
    Actions *actions() const { return m_actions; }
    PagePanel *pages() const { return m_pages; }
    PalettePanel *palettePanel() const { return m_palette; }
    Presentation *presentation() const { return m_presentation; }
    Notices *notices() const { return m_notices; }
    DocumentController *documents() const { return m_documents; }
    Recovery *recovery() const { return m_recovery; }
    ClipboardController *clipboard() const { return m_clipboard; }
    SettingsPanel *settings() const;
    PropertyPanel *properties() const;
    /// Opens the side panel with this part of it in front.
    void raisePanel(const QWidget *part);
    Drawer *panel() const { return m_panel; }
    Drawer *palette() const { return m_paletteDrawer; }
    LessonController *lessons() const { return m_lessons; }
    LessonBar *lessonBar() const { return m_lessonBar; }
    pagehost::AnimationPlayer *animation() const { return m_animation; }
    ToolChoice *tools() const { return m_tools; }
    ToolSettings *toolSettings() const { return m_toolSettings; }
    FindBar *findBar() const { return m_findBar; }
    Dock *dock() const { return m_dock; }
    TopBar *topBar() const { return m_topBar; }
    QMenuBar *menus() const;
    /// Puts the tools at another edge of the window, for good.
    void setDockEdge(Qt::Edge edge);
    /// Makes tools and bar large enough for fingers, or as usual.
    void setLargeTools(bool large);

    /// Waits for the user to draw a shape of this kind; an empty id for none any more.
    void beginCreation(const QString &kindId);

protected:
    /// Asks first when changes could be lost.
    void closeEvent(QCloseEvent *event) override;

private:
    void settle();
    void showPluginProblems();
    void addPanels();
    void namePanes();
    void connectPanels();
    void addMenus();
    void addDockMenu();
    void markMenus();
    void offerLargeTools();
    void addStyleBar();
    void layOut();
    void showDockAt(Qt::Edge edge);
    void followDrag(const QPoint &pos);
    void chooseShape();
    void connectParts();
    void connectTools();
    void connectLessons();
    void connectAnimation();
    void connectDocument();
    void showTitle();
    void takeDrop(const QMimeData &data, const QPointF &scenePos);
    void showCurrentPage();
    void showSelection();
    void showHint();
    void placeInMiddle(const QString &kindId);
    void askAndInsert();
    void showAbout();

    Workspace *m_workspace;
    Commands *m_commands;
    PageView *m_view;
    /// Before all that has a name for readers.
    ScreenReading *m_screenReading;
    Actions *m_actions;
    Notices *m_notices;
    DocumentController *m_documents;
    DocumentMenu *m_documentMenu;
    Recovery *m_recovery;
    ClipboardController *m_clipboard;
    ClipboardMenu *m_clipboardMenu;
    Worksheets *m_worksheets;
    LessonController *m_lessons;
    LessonMenu *m_lessonMenu;
    LessonBar *m_lessonBar;
    pagehost::AnimationPlayer *m_animation;
    ToolChoice *m_tools;
    NewLook *m_newLook;
    ShapeTool *m_shapeTool;
    ToolSettings *m_toolSettings;
    EditingLock m_lock;
    Presentation *m_presentation;
    TopBar *m_topBar;
    Dock *m_dock;
    HintPill *m_hint;
    Shelf *m_shelf;
    FindBar *m_findBar;
    QMenu *m_viewMenu = nullptr;
    QWidget *m_middle = nullptr; ///< all but the bar at the top and the dock
    QWidget *m_leftSlot = nullptr;
    QWidget *m_rightSlot = nullptr;
    PenOptions *m_penOptions = nullptr;
    Drawer *m_paletteDrawer = nullptr;
    Drawer *m_panel = nullptr;
    SidePanel *m_sidePanel = nullptr;
    ObjectPanel *m_object = nullptr;
    OutlinePanel *m_outline = nullptr;
    QBoxLayout *m_frame = nullptr; ///< the bar at the top, and all the rest
    QBoxLayout *m_body = nullptr;  ///< the dock, its shelf, and the page
    PagePanel *m_pages = nullptr;
    PalettePanel *m_palette = nullptr;
    OncePerTurn m_refreshHint;
    bool m_mayClose = false; ///< the user gave unsaved changes up
};

} // namespace board
