#include "window/mainwindow.h"

#include "clipboard/clipboardcontroller.h"
#include "clipboard/clipboardmenu.h"
#include "commands/contextmenus.h"
#include "commands/menuplan.h"
#include "core/actions.h"
#include "core/commands.h"
#include "core/notices.h"
#include "core/pluginfolders.h"
#include "core/toolchoice.h"
#include "core/toolcommands.h"
#include "core/workspace.h"
#include "documents/documentcontroller.h"
#include "documents/documentmenu.h"
#include "documents/droppeddocument.h"
#include "documents/recovery.h"
#include "documents/shapenotices.h"
#include "lessons/lessonbar.h"
#include "lessons/lessoncontroller.h"
#include "lessons/lessonmenu.h"
#include "look/theme.h"
#include "output/pageexport.h"
#include "page/pageview.h"
#include "panels/historypanel.h"
#include "panels/pagepanel.h"
#include "panels/palettepanel.h"
#include "panels/properties/propertypanel.h"
#include "panels/settings/settingspanel.h"
#include "panels/stylepanel.h"
#include "tools/toolbox.h"
#include "tools/toolsettings.h"
#include "window/fieldundo.h"
#include "window/shapetool.h"
#include "window/statusline.h"

#include <pagehost/animationplayer.h>
#include <pagehost/page.h>
#include <pagehost/selection.h>

#include <framework/cbaseobject.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace board {

namespace {

constexpr QSize firstSize(1400, 900);
constexpr QSize toolIconSize(22, 22);
constexpr int rightPanelWidth = 300;
/// Half of what a new shape measures, about.
constexpr QPointF halfUsualSize(60, 50);

QScrollArea *scrolling(QWidget *panel)
{
    auto *area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(panel);
    return area;
}

} // namespace

MainWindow::MainWindow(Workspace *workspace)
    : m_workspace(workspace)
    , m_commands(new Commands(workspace, this))
    , m_view(new PageView)
    , m_actions(new Actions(workspace, m_commands, m_view, this))
    , m_notices(new Notices(workspace, this))
    , m_documents(new DocumentController(workspace, this, m_notices))
    , m_documentMenu(new DocumentMenu(workspace, m_commands, m_documents, this))
    , m_recovery(new Recovery(workspace, m_documents, m_notices, this))
    , m_clipboard(new ClipboardController(workspace, m_view, m_notices, this))
    , m_clipboardMenu(new ClipboardMenu(m_commands, m_clipboard, m_view, this))
    , m_lessons(new LessonController(workspace, m_notices, this))
    , m_lessonMenu(new LessonMenu(workspace, m_commands, m_lessons, this))
    , m_lessonBar(new LessonBar(workspace, m_lessons, m_lessonMenu))
    , m_animation(new pagehost::AnimationPlayer(m_view, this))
    , m_tools(new ToolChoice(this))
    , m_shapeTool(new ShapeTool(&workspace->registry(), m_tools, m_view, this))
    , m_toolSettings(new ToolSettings(this))
    , m_lock(this, m_view)
    , m_dialogs(workspace, this)
    , m_describeSelection([this] { describeSelection(); })
{
    m_view->setAccessibleName(workspace->text("IDS_BOARD_PAGE"));
    m_view->setEmptyHint({workspace->text("IDS_BOARD_HINT_TITLE"), workspace->text("IDS_BOARD_HINT_ADVICE")});
    auto *centre = new QWidget(this);
    auto *column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_notices);
    column->addWidget(m_view, 1);
    column->addWidget(m_lessonBar);
    setCentralWidget(centre);
    addMenus();
    addTools();
    addPanels();
    m_status = new StatusLine(m_workspace, m_actions, m_view, statusBar());
    connectParts();
    connectTools();
    connectLessons();
    connectAnimation();
    connectDocument();
    new Toolbox(m_workspace, m_view, m_tools, m_toolSettings, this);
    new FieldUndo(this);
    new ToolCommands(m_commands, m_tools, this);
    auto *contextMenus = new ContextMenus(m_workspace, m_commands, m_view, this);
    contextMenus->addThumbnails(m_pages->list());
    new ShapeNotices(m_workspace, m_notices, this);
    showPluginProblems();
    showTitle();
    resize(firstSize);
    m_view->setFocus();
}

void MainWindow::showPluginProblems()
{
    QStringList lines;
    for (const pagehost::PluginReport &report : m_workspace->pluginProblems())
        lines.append(pluginProblemText(report));
    if (!lines.isEmpty())
        m_notices->add({m_workspace->text("IDS_BOARD_PLUGIN_PROBLEMS"), lines, {}, QStringLiteral("pluginNotice")});
}

void MainWindow::showTitle()
{
    setWindowTitle(QStringLiteral("%1[*] – %2").arg(m_documents->name(), m_workspace->text("IDS_BOARD_TITLE")));
    setWindowModified(m_documents->isModified());
}

void MainWindow::settle()
{
    m_settings->settle();
    m_properties->settle();
    m_view->settle();
    m_lessons->keepSoFar();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    settle();
    if (m_mayClose || !m_documents->isModified())
        return event->accept();
    event->ignore();
    m_documents->whenSafe([this] {
        m_mayClose = true;
        close();
    });
}

QDockWidget *MainWindow::addPanel(Qt::DockWidgetArea area, const char *titleKey, QWidget *panel)
{
    auto *dock = new QDockWidget(m_workspace->text(titleKey), this);
    dock->setObjectName(QLatin1String(titleKey));
    dock->setWidget(panel);
    dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
    panel->setAccessibleName(dock->windowTitle());
    addDockWidget(area, dock);
    return dock;
}

void MainWindow::raisePanel(const QWidget *panel)
{
    for (QDockWidget *dock : findChildren<QDockWidget *>()) {
        if (dock->isAncestorOf(panel)) {
            dock->show();
            dock->raise();
        }
    }
}

void MainWindow::addPanels()
{
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    m_palette = new PalettePanel(m_workspace);
    m_pages = new PagePanel(m_workspace, {m_actions->addPage, m_actions->removePage});
    m_style = new StylePanel(m_workspace);
    m_settings = new SettingsPanel(m_workspace);
    m_properties = new PropertyPanel(m_workspace);
    QDockWidget *palette = addPanel(Qt::LeftDockWidgetArea, "IDS_BOARD_SHAPES", m_palette);
    QDockWidget *pages = addPanel(Qt::BottomDockWidgetArea, "IDS_BOARD_PAGES", m_pages);
    QDockWidget *style = addPanel(Qt::RightDockWidgetArea, "IDS_BOARD_STYLE", scrolling(m_style));
    QDockWidget *settings = addPanel(Qt::RightDockWidgetArea, "IDS_BOARD_SETTINGS", scrolling(m_settings));
    QDockWidget *properties = addPanel(Qt::RightDockWidgetArea, "IDS_BOARD_PROPERTIES", scrolling(m_properties));
    QDockWidget *history = addPanel(Qt::RightDockWidgetArea, "IDS_BOARD_HISTORY", new HistoryPanel(m_workspace));
    connect(style, &QDockWidget::visibilityChanged, m_style, &StylePanel::comeToFront);
    connect(settings, &QDockWidget::visibilityChanged, m_settings, &SelectionPanel::comeToFront);
    connect(properties, &QDockWidget::visibilityChanged, m_properties, &SelectionPanel::comeToFront);
    tabifyDockWidget(style, settings);
    tabifyDockWidget(settings, properties);
    setTabPosition(Qt::RightDockWidgetArea, QTabWidget::North);
    style->raise();
    for (QTabBar *tabs : findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly)) {
        tabs->setElideMode(Qt::ElideNone);
        tabs->setUsesScrollButtons(false);
    }
    // The strip of pages and the tabs speak for themselves.
    for (QDockWidget *dock : {pages, style, settings, properties})
        dock->setTitleBarWidget(new QWidget(dock));
    resizeDocks({palette, style}, {m_palette->sizeHint().width(), rightPanelWidth}, Qt::Horizontal);
    resizeDocks({style, history}, {3, 2}, Qt::Vertical);
    auto *panels = new QMenu(m_workspace->text("IDS_BOARD_PANELS"), this);
    for (QDockWidget *dock : {palette, style, settings, properties, history, pages})
        panels->addAction(dock->toggleViewAction());
    // Help comes last.
    menuBar()->insertMenu(menuBar()->actions().last(), panels);
}

void MainWindow::addMenus()
{
    const QStringList spared{QStringLiteral("IDS_BOARD_FILE"), QStringLiteral("IDS_LESSON_MENU"),
                             QStringLiteral("IDS_BOARD_VIEW"), QStringLiteral("IDS_BOARD_HELP")};
    for (const MenuEntry &entry : mainMenuPlan()) {
        QMenu *menu = menuBar()->addMenu(m_workspace->text(entry.titleKey));
        fillMenu(menu, entry.entries, *m_commands, *m_workspace);
        if (spared.contains(QLatin1String(entry.titleKey)))
            m_lock.spare(menu);
    }
    menuBar()->actions().first()->menu()->insertMenu(m_commands->action(Command::SaveBoard),
                                                     m_documentMenu->recentMenu());
}

QToolBar *MainWindow::addTools(const QString &name, const char *titleKey)
{
    QToolBar *bar = addToolBar(m_workspace->text(titleKey));
    bar->setObjectName(name);
    bar->setMovable(false);
    bar->setIconSize(toolIconSize);
    bar->setToolButtonStyle(Qt::ToolButtonIconOnly);
    return bar;
}

void MainWindow::addTools()
{
    QToolBar *bar = addTools(QStringLiteral("tools"), "IDS_BOARD_TOOLS");
    const Actions &a = *m_actions;
    const ClipboardMenu &c = *m_clipboardMenu;
    const QList<QList<QAction *>> groups{
        {m_commands->action(Command::OpenBoard), m_commands->action(Command::SaveBoard)},
        {a.undo, a.redo},
        {c.cut, c.copy, c.paste, a.duplicate, a.remove},
        {a.toFront, a.forward, a.backward, a.toBack},
        {a.mirrorHorizontally, a.mirrorVertically, a.rotateLeft, a.rotateRight}};
    for (const QList<QAction *> &group : groups) {
        if (group != groups.first())
            bar->addSeparator();
        bar->addActions(group);
    }
    QToolBar *playing = addTools(QStringLiteral("animationTools"), "IDS_BOARD_ANIMATION");
    playing->addAction(a.playAnimation);
    m_lock.spare(playing);
}

void MainWindow::connectLessons()
{
    connect(m_lessons, &LessonController::shownPageChanged, this, [this] {
        m_lock.setLocked(m_lessons->isShowing());
        m_commands->setEditingBlocked(m_lessons->isShowing());
        showCurrentPage();
    });
    m_recovery->setCompletion([this] { m_lessons->keepSoFar(); });
}

void MainWindow::connectAnimation()
{
    QAction *action = m_actions->playAnimation;
    const auto show = [this, action] {
        action->setEnabled(m_animation->hasAnimation());
        action->setChecked(m_animation->isPlaying());
    };
    connect(m_animation, &pagehost::AnimationPlayer::hasAnimationChanged, this, show);
    connect(m_animation, &pagehost::AnimationPlayer::playingChanged, this, show);
    connect(action, &QAction::triggered, m_animation, &pagehost::AnimationPlayer::setPlaying);
    show();
}

void MainWindow::connectDocument()
{
    const pagehost::Document *document = m_workspace->document();
    connect(document, &pagehost::Document::currentPageChanged, this, &MainWindow::showCurrentPage);
    connect(document, &pagehost::Document::pageInserted, m_actions, &Actions::update);
    connect(document, &pagehost::Document::pageRemoved, m_actions, &Actions::update);
    connect(document, &pagehost::Document::pageMoved, m_actions, &Actions::update);
    showCurrentPage();
}

void MainWindow::connectTools()
{
    connect(m_palette, &PalettePanel::kindPicked, this, &MainWindow::beginCreation);
    connect(m_palette, &PalettePanel::placeRequested, this, &MainWindow::placeInMiddle);
    connect(m_view, &PageView::kindDropped, this, [this](const QString &kindId, const QPointF &pos) {
        m_shapeTool->place(kindId, pos - halfUsualSize);
        m_view->setFocus();
    });
    connect(m_shapeTool, &ShapeTool::waitingKindChanged, this, [this] {
        m_palette->showWaitingKind(m_shapeTool->waitingKind());
        showHint();
    });
}

void MainWindow::connectParts()
{
    connect(m_workspace, &Workspace::documentReplaced, this, &MainWindow::connectDocument);
    connect(m_workspace, &Workspace::kindsChanged, m_palette, &PalettePanel::showKinds);
    // Problems turn up in the middle of opening and drawing.
    connect(m_workspace, &Workspace::pluginProblemFound, this, &MainWindow::showPluginProblems,
            Qt::QueuedConnection);
    m_documents->setSettle([this] { settle(); });
    connect(m_actions, &Actions::aboutToStep, m_settings, &SelectionPanel::settle);
    connect(m_actions, &Actions::aboutToStep, m_properties, &SelectionPanel::settle);
    connect(m_documents, &DocumentController::stateChanged, this, &MainWindow::showTitle);
    connect(m_documents, &DocumentController::saved, this,
            [this](const QString &file) { m_status->showMessage(m_workspace->text("IDS_BOARD_SAVED"), file); });
    m_view->setDropTest(
        [this](const QMimeData &data) { return !droppedDocument(data).isEmpty() || m_clipboard->accepts(data); });
    connect(m_view, &PageView::dataDropped, this, &MainWindow::takeDrop);
    connect(m_actions->exportPages, &QAction::triggered, this, [this] { askAndExport(PageFormat::Png); });
    connect(m_actions->exportSvg, &QAction::triggered, this, [this] { askAndExport(PageFormat::Svg); });
    connect(m_actions->about, &QAction::triggered, this, &MainWindow::showAbout);
    m_commands->perform(Command::AllProperties, this, [this] { raisePanel(m_properties); });
    connect(m_actions->quit, &QAction::triggered, this, &QWidget::close);
}

void MainWindow::showCurrentPage()
{
    m_shapeTool->cancel();
    if (m_view->page())
        disconnect(m_view->page(), nullptr, this, nullptr);
    pagehost::Page *page = m_lessons->shownDocument()->currentPage();
    m_view->setPage(page);
    m_animation->setPage(page);
    m_style->setPage(page);
    m_settings->setPage(page);
    m_properties->setPage(page);
    if (page) {
        connect(page, &pagehost::Page::selectionChanged, this, &MainWindow::showSelection);
        connect(page, &pagehost::Page::contentChanged, this, &MainWindow::showSelection);
    }
    showSelection();
}

void MainWindow::takeDrop(const QMimeData &data, const QPointF &scenePos)
{
    const QString file = droppedDocument(data);
    if (file.isEmpty())
        m_clipboard->drop(data, scenePos);
    else
        m_documents->open(file);
}

void MainWindow::showSelection()
{
    // At once: the next key that is pressed may be theirs.
    m_actions->update();
    m_clipboardMenu->update();
    m_describeSelection.request();
}

void MainWindow::describeSelection()
{
    const pagehost::Page *page = m_view->page();
    m_status->showBounds(page ? pagehost::boundsOf(page->selectedObjects()) : QRectF());
    describeView();
    showHint();
}

/// Shapes are no widgets: screen readers learn through the view what is on the page and what is selected.
void MainWindow::describeView()
{
    const pagehost::Page *page = m_view->page();
    if (!page)
        return;
    QStringList selected;
    for (CBaseObject *object : page->selectedObjects())
        selected.append(m_workspace->text(object->kindName()));
    QString text = m_workspace->text("IDS_BOARD_SEVERAL").arg(page->objectCount());
    if (!selected.isEmpty())
        text +=
            QStringLiteral("; ") + m_workspace->text("IDS_BOARD_SELECTED").arg(selected.join(QStringLiteral(", ")));
    m_view->setAccessibleDescription(text);
}

void MainWindow::showHint()
{
    const char *key = "IDS_BOARD_HINT_IDLE";
    if (m_lessons->isShowing())
        key = "IDS_LESSON_HINT";
    else if (m_tools->tool() == Tool::Shape)
        key = "IDS_BOARD_HINT_DRAW";
    else if (m_view->page() && !m_view->page()->selectedObjects().isEmpty())
        key = "IDS_BOARD_HINT_SELECTED";
    m_status->showHint(key);
}

void MainWindow::beginCreation(const QString &kindId)
{
    m_shapeTool->begin(kindId);
    m_view->setFocus();
}

void MainWindow::placeInMiddle(const QString &kindId)
{
    const QPointF middle = m_view->mapToScene(m_view->viewport()->rect().center());
    m_shapeTool->place(kindId, middle - halfUsualSize);
}

void MainWindow::askAndExport(PageFormat format)
{
    const char *titleKey = format == PageFormat::Svg ? "IDS_BOARD_EXPORT_SVG" : "IDS_BOARD_EXPORT";
    m_dialogs.askForFolder(m_workspace->text(titleKey), m_documents->folder(), [=](const QString &folder) {
        QStringList present = exportFiles(m_workspace->document(), folder, format);
        present.erase(std::remove_if(present.begin(), present.end(),
                                     [](const QString &file) { return !QFileInfo::exists(file); }),
                      present.end());
        if (present.isEmpty())
            exportPages(folder, format);
        else
            m_dialogs.askToReplace(present, [=] { exportPages(folder, format); });
    });
}

void MainWindow::exportPages(const QString &folder, PageFormat format)
{
    const ExportResult result =
        board::exportPages(m_workspace->document(), m_workspace->registry(), folder, {format, 1});
    if (!result.files.isEmpty())
        m_status->showMessage(m_workspace->text("IDS_BOARD_EXPORTED").arg(result.files.size()), folder);
    if (!result.problems.isEmpty())
        m_notices->add(
            {m_workspace->text("IDS_BOARD_NOT_EXPORTED"), result.problems, {}, QStringLiteral("exportNotice")});
    else
        m_notices->remove(QStringLiteral("exportNotice"));
}

void MainWindow::showAbout()
{
    QMessageBox::about(this, m_workspace->text("IDS_BOARD_TITLE"),
                       m_workspace->text("IDS_BOARD_ABOUT_TEXT").arg(QCoreApplication::applicationVersion()));
}

} // namespace board
