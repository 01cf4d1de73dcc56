#include "window/mainwindow.h"

#include "accessible/screenreading.h"
#include "clipboard/clipboardcontroller.h"
#include "clipboard/clipboardmenu.h"
#include "clipboard/worksheets.h"
#include "commands/contextmenus.h"
#include "commands/helpcommands.h"
#include "commands/menuplan.h"
#include "commands/shapecommands.h"
#include "core/actions.h"
#include "core/commands.h"
#include "core/mnemonics.h"
#include "core/newlook.h"
#include "core/notices.h"
#include "core/paperactions.h"
#include "core/pluginfolders.h"
#include "core/snapactions.h"
#include "core/toolchoice.h"
#include "core/toolcommands.h"
#include "core/touchactions.h"
#include "core/windowmemory.h"
#include "core/workspace.h"
#include "documents/documentcontroller.h"
#include "documents/documentmenu.h"
#include "documents/droppeddocument.h"
#include "documents/recovery.h"
#include "documents/shapenotices.h"
#include "exporting/exporter.h"
#include "exporting/printing.h"
#include "lessons/lessonbar.h"
#include "lessons/lessoncontroller.h"
#include "lessons/lessonmenu.h"
#include "lessons/takeoveroffer.h"
#include "look/accessiblerole.h"
#include "look/dockbutton.h"
#include "look/sizes.h"
#include "look/surfaceshadow.h"
#include "look/theme.h"
#include "page/labelwriting.h"
#include "page/pageview.h"
#include "panels/findbar.h"
#include "panels/finding.h"
#include "panels/historypanel.h"
#include "panels/outlinepanel.h"
#include "panels/pagepanel.h"
#include "panels/palettepanel.h"
#include "panels/properties/propertypanel.h"
#include "panels/settings/settingspanel.h"
#include "presenting/presentation.h"
#include "tools/helderaser.h"
#include "tools/toolbox.h"
#include "tools/toolkeys.h"
#include "tools/toolsettings.h"
#include "window/altkeys.h"
#include "window/dock.h"
#include "window/drawer.h"
#include "window/fieldundo.h"
#include "window/hintpill.h"
#include "window/objectpanel.h"
#include "window/pencolors.h"
#include "window/penoptions.h"
#include "window/shapefolder.h"
#include "window/shapetool.h"
#include "window/shelf.h"
#include "window/sidepanel.h"
#include "window/stylebar.h"
#include "window/topbar.h"
#include "window/typingbar.h"
#include "window/windowparts.h"

#include <pagehost/animationplayer.h>
#include <pagehost/page.h>
#include <pagehost/selection.h>

#include <framework/cbaseobject.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QAction>
#include <QtWidgets/QActionGroup>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace board {

namespace {

constexpr QSize firstSize(1400, 900);
/// Half of what a new shape measures, about.
constexpr QPointF halfUsualSize(60, 50);
constexpr int tallestPalette = 560;
constexpr int paletteInset = 8;

} // namespace

MainWindow::MainWindow(Workspace *workspace)
    : m_workspace(workspace)
    , m_commands(new Commands(workspace, this))
    , m_view(new PageView)
    , m_screenReading(new ScreenReading(workspace, m_commands, m_view, this))
    , m_actions(new Actions(workspace, m_commands, m_view, this))
    , m_notices(new Notices(workspace, this))
    , m_documents(new DocumentController(workspace, this, m_notices))
    , m_documentMenu(new DocumentMenu(workspace, m_commands, m_documents, this))
    , m_recovery(new Recovery(workspace, m_documents, m_notices, this))
    , m_clipboard(new ClipboardController(workspace, m_view, m_notices, this))
    , m_clipboardMenu(new ClipboardMenu(m_commands, m_clipboard, m_view, this))
    , m_worksheets(new Worksheets(workspace, m_notices, this))
    , m_lessons(new LessonController(workspace, m_notices, this))
    , m_lessonMenu(new LessonMenu(workspace, m_commands, m_lessons, this))
    , m_lessonBar(new LessonBar(workspace, m_lessons, m_lessonMenu))
    , m_animation(new pagehost::AnimationPlayer(m_view, this))
    , m_tools(new ToolChoice(this))
    , m_newLook(new NewLook(this))
    , m_shapeTool(new ShapeTool(&workspace->registry(), m_tools, m_newLook, m_view, this))
    , m_toolSettings(new ToolSettings(this))
    , m_lock(m_view)
    , m_presentation(new Presentation(workspace, m_commands, m_tools, m_view, this))
    , m_topBar(new TopBar(workspace, m_actions, m_view, this))
    , m_dock(new Dock(workspace, m_commands, m_tools))
    , m_hint(new HintPill(m_view))
    , m_shelf(new Shelf(workspace, m_tools, m_toolSettings, m_view))
    , m_findBar(new FindBar(workspace, m_commands))
    , m_refreshHint([this] { showHint(); })
{
    castShadowsOfMenus();
    m_view->setAccessibleName(workspace->text("IDS_BOARD_PAGE"));
    m_view->keys()->setPointName(workspace->text("IDS_BOARD_POINT_NAME"));
    m_view->setEmptyHint({workspace->text("IDS_BOARD_HINT_TITLE"), workspace->text("IDS_BOARD_HINT_ADVICE")});
    layOut();
    addMenus();
    connectPanels();
    m_topBar->addCommand(m_lessonMenu->record);
    m_topBar->addPrimary(m_commands->action(Command::Present), Icon::Present);
    m_topBar->addPageSwitch(m_commands->action(Command::PageStrip));
    m_topBar->addSwitch(m_commands->action(Command::Panel));
    for (QWidget *part : {m_topBar->pages(), static_cast<QWidget *>(m_pages), static_cast<QWidget *>(m_palette),
                          static_cast<QWidget *>(m_sidePanel), static_cast<QWidget *>(m_findBar)})
        m_lock.add(part);
    connectParts();
    connectTools();
    addStyleBar();
    connectLessons();
    connectAnimation();
    connectDocument();
    new Toolbox(m_workspace, m_view, m_tools, m_toolSettings, this);
    new PaperActions(m_commands, m_view, this);
    new SnapActions(m_commands, m_view, this);
    new Finding(m_workspace, m_commands, m_view, m_findBar, this);
    new TouchActions(m_commands, m_view, this);
    new FieldUndo(this);
    new AltKeys(this);
    new ToolCommands(m_commands, m_tools, this);
    new ToolKeys(m_commands, m_tools, m_toolSettings, this);
    new HeldEraser(m_view, m_tools, this);
    auto *contextMenus = new ContextMenus(m_workspace, m_commands, m_view, this);
    contextMenus->addThumbnails(m_pages->list());
    const auto *help = new HelpCommands(m_workspace, m_commands, this);
    connect(help, &HelpCommands::kindChosen, this, &MainWindow::beginCreation);
    const auto *shapes = new ShapeCommands(m_workspace, m_commands, this);
    connect(shapes, &ShapeCommands::kindChosen, this, &MainWindow::beginCreation);
    new ShapeNotices(m_workspace, m_notices, this);
    showPluginProblems();
    showTitle();
    resize(firstSize);
    m_view->setFocus();
}

void MainWindow::layOut()
{
    m_palette = new PalettePanel(m_workspace);
    m_pages = new PagePanel(m_workspace, {m_actions->addPage, m_actions->removePage});
    m_middle = new QWidget;
    m_leftSlot = new QWidget(m_middle);
    m_rightSlot = new QWidget(m_middle);
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(m_notices);
    column->addWidget(m_findBar);
    column->addWidget(m_view, 1);
    column->addWidget(m_pages);
    column->addWidget(m_lessonBar);
    auto *row = new QHBoxLayout(m_middle);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_leftSlot);
    row->addLayout(column, 1);
    row->addWidget(m_rightSlot);
    auto *centre = new QWidget(this);
    m_frame = new QBoxLayout(QBoxLayout::TopToBottom, centre);
    m_frame->setContentsMargins(0, 0, 0, 0);
    m_frame->setSpacing(0);
    m_body = new QBoxLayout(QBoxLayout::LeftToRight);
    m_body->setSpacing(0);
    m_body->addWidget(m_dock);
    m_body->addWidget(m_middle, 1);
    m_frame->addWidget(m_topBar);
    m_frame->addLayout(m_body, 1);
    setCentralWidget(centre);
    addPanels();
    m_dock->setColors(new PenColors(*m_workspace, m_tools, m_toolSettings));
    setLargeTools(remembersLargeTools());
    showDockAt(rememberedDockEdge());
}

void MainWindow::setDockEdge(Qt::Edge edge)
{
    showDockAt(edge);
    rememberDockEdge(edge);
}

void MainWindow::showDockAt(Qt::Edge edge)
{
    m_dock->setEdge(edge);
    m_frame->setDirection(edge == Qt::BottomEdge ? QBoxLayout::BottomToTop : QBoxLayout::TopToBottom);
    // Layouts mirror themselves where texts run to the left.
    const bool isAtEnd = edge == (isRightToLeft() ? Qt::LeftEdge : Qt::RightEdge);
    m_body->setDirection(isAtEnd ? QBoxLayout::RightToLeft : QBoxLayout::LeftToRight);
    // At the top and the bottom, tools and bar are one.
    if (edge == Qt::TopEdge || edge == Qt::BottomEdge) {
        m_topBar->takeTools(m_dock, edge);
    } else {
        m_topBar->giveTools();
        m_body->insertWidget(0, m_dock);
    }
    m_view->setShelfEdge(edge);
    m_shelf->setEdge(edge);
    const Qt::Edge start = isRightToLeft() ? Qt::RightEdge : Qt::LeftEdge;
    m_paletteDrawer->setSide(edge == Qt::LeftEdge || edge == Qt::RightEdge ? edge : start);
}

void MainWindow::setLargeTools(bool large)
{
    applyLargeSizes(large);
    m_view->setLargeGrips(large);
    rememberLargeTools(large);
}

/// Once, to those who use fingers.
void MainWindow::offerLargeTools()
{
    if (areSizesLarge() || remembersOfferOfLargeTools())
        return;
    rememberOfferOfLargeTools();
    m_notices->add({m_workspace->text("IDS_BOARD_LARGE_TOOLS_OFFER"),
                    {},
                    {{m_workspace->text("IDS_BOARD_LARGE_TOOLS"), [this] { setLargeTools(true); }}},
                    QStringLiteral("largeToolsNotice")});
}

/// To the edge that the pointer is nearest to.
void MainWindow::followDrag(const QPoint &pos)
{
    const QRect area = centralWidget()->rect();
    const QPoint at = centralWidget()->mapFromGlobal(pos);
    const QPair<int, Qt::Edge> distances[] = {{at.x(), Qt::LeftEdge},
                                              {area.width() - at.x(), Qt::RightEdge},
                                              {at.y(), Qt::TopEdge},
                                              {area.height() - at.y(), Qt::BottomEdge}};
    const Qt::Edge nearest = std::min_element(std::begin(distances), std::end(distances))->second;
    if (nearest != m_dock->edge())
        setDockEdge(nearest);
}

QMenuBar *MainWindow::menus() const
{
    return m_topBar->menus();
}

void MainWindow::showPluginProblems()
{
    QStringList lines;
    const QVector<pagehost::PluginReport> reports = m_workspace->pluginProblems();
    for (const pagehost::PluginReport &report : reports)
        lines.append(pluginProblemText(report));
    if (!lines.isEmpty())
        m_notices->add({m_workspace->text("IDS_BOARD_PLUGIN_PROBLEMS"), lines, {}, QStringLiteral("pluginNotice")});
}

void MainWindow::showTitle()
{
    setWindowTitle(QStringLiteral("%1[*] – %2").arg(m_documents->name(), m_workspace->text("IDS_BOARD_TITLE")));
    setWindowModified(m_documents->isModified());
    m_topBar->showSaved(!m_documents->isModified(), !m_documents->file().isEmpty());
}

void MainWindow::settle()
{
    m_object->settle();
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

SettingsPanel *MainWindow::settings() const
{
    return m_object->settings();
}

PropertyPanel *MainWindow::properties() const
{
    return m_object->properties();
}

void MainWindow::raisePanel(const QWidget *part)
{
    m_panel->setOpen(true);
    m_sidePanel->showTab(part);
    if (part == properties())
        m_object->showAllProperties();
}

void MainWindow::addPanels()
{
    m_object = new ObjectPanel(m_workspace, m_commands, m_newLook);
    m_outline = new OutlinePanel(m_workspace);
    m_sidePanel = new SidePanel(m_workspace);
    m_sidePanel->addTab(m_workspace->text("IDS_BOARD_OBJECT"), m_object);
    m_sidePanel->addTab(m_workspace->text("IDS_BOARD_OUTLINE"), m_outline);
    m_sidePanel->addTab(m_workspace->text("IDS_BOARD_HISTORY"), new HistoryPanel(m_workspace));
    m_panel = new Drawer(m_middle, m_rightSlot, sizes().panel, 0, QWIDGETSIZE_MAX);
    m_panel->setContent(m_sidePanel);
    m_panel->setSide(isRightToLeft() ? Qt::LeftEdge : Qt::RightEdge);
    m_paletteDrawer = new Drawer(m_middle, m_leftSlot, sizes().palette, paletteInset, tallestPalette);
    m_paletteDrawer->setContent(m_palette);
    namePanes();
    addShapeFolderActions(m_palette->menu(), m_workspace, this);
    m_paletteDrawer->addOpener(m_dock->buttonOf(Tool::Shape));
    m_penOptions = new PenOptions({m_workspace, m_commands, m_tools, m_toolSettings, m_shelf}, m_view);
    for (const Tool tool : {Tool::Pen, Tool::Highlighter})
        m_penOptions->addOpener(m_dock->buttonOf(tool));
    connect(m_dock, &Dock::optionsRequested, m_penOptions, &PenOptions::toggle);
    followSizes(this, [this] {
        m_panel->setUsualWidth(sizes().panel);
        m_paletteDrawer->setUsualWidth(sizes().palette);
        m_view->setShelfEdge(m_dock->edge());
    });
}

/// For screen readers.
void MainWindow::namePanes()
{
    const QPair<QWidget *, const char *> panes[] = {
        {m_panel, "IDS_BOARD_PANEL"}, {m_paletteDrawer, "IDS_BOARD_SHAPES"}, {m_pages, "IDS_BOARD_PAGES"}};
    for (const auto &pane : panes) {
        setAccessibleRole(pane.first, QAccessible::Pane);
        pane.first->setAccessibleName(m_workspace->text(pane.second));
    }
}

void MainWindow::connectPanels()
{
    const auto follow = [this](Drawer *drawer, QToolButton *pin, Pane pane) {
        drawer->setHeir(m_view);
        connect(pin, &QToolButton::toggled, drawer, &Drawer::setPinned);
        connect(drawer, &Drawer::pinnedChanged, pin, &QToolButton::setChecked);
        connect(drawer, &Drawer::openChanged, this, [this](bool open) {
            if (!open)
                m_view->setFocus();
        });
        connect(drawer, &Drawer::pinnedChanged, this, [=](bool pinned) { rememberPinned(pane, pinned); });
        pin->setChecked(remembersPinned(pane));
        // Only what is pinned is a part of the window that comes back.
        drawer->setOpen(drawer->isPinned());
    };
    follow(m_panel, m_sidePanel->pin(), Pane::Panel);
    follow(m_paletteDrawer, m_palette->pin(), Pane::Palette);
    const auto giveWay = [this] {
        const bool isBehindShapes = m_paletteDrawer->isOpen() && !m_paletteDrawer->isPinned();
        m_shelf->setCovered(isBehindShapes || m_lessons->isShowing());
    };
    connect(m_lessons, &LessonController::shownPageChanged, m_shelf, giveWay);
    connect(m_paletteDrawer, &Drawer::openChanged, m_shelf, giveWay);
    connect(m_paletteDrawer, &Drawer::pinnedChanged, m_shelf, giveWay);
    QAction *panel = m_commands->perform(Command::Panel);
    connect(panel, &QAction::triggered, m_panel, &Drawer::setOpen);
    connect(m_panel, &Drawer::openChanged, panel, &QAction::setChecked);
    panel->setChecked(m_panel->isOpen());
    QAction *strip = m_commands->perform(Command::PageStrip);
    connect(strip, &QAction::toggled, this, [this](bool shown) {
        m_pages->setVisible(shown);
        rememberPinned(Pane::Pages, shown);
    });
    strip->setChecked(remembersPinned(Pane::Pages));
    m_pages->setVisible(strip->isChecked());
    const auto showLessons = [this] {
        m_lessonBar->setVisible(m_lessons->isRecording() || m_lessons->chosen() >= 0);
    };
    connect(m_lessons, &LessonController::stateChanged, this, showLessons);
    connect(m_lessons, &LessonController::lessonsChanged, this, showLessons);
    showLessons();
}

void MainWindow::addMenus()
{
    const QStringList spared{QStringLiteral("IDS_BOARD_FILE"), QStringLiteral("IDS_LESSON_MENU"),
                             QStringLiteral("IDS_BOARD_VIEW"), QStringLiteral("IDS_BOARD_HELP")};
    const MenuPlan plan = mainMenuPlan();
    for (const MenuEntry &entry : plan) {
        QMenu *menu = m_topBar->addMenu(m_workspace->text(entry.titleKey));
        fillMenu(menu, entry.entries, *m_commands, *m_workspace);
        if (!spared.contains(QLatin1String(entry.titleKey)))
            m_lock.add(menu);
        if (QLatin1String(entry.titleKey) == QLatin1String("IDS_BOARD_VIEW"))
            m_viewMenu = menu;
        if (QLatin1String(entry.titleKey) == QLatin1String("IDS_LESSON_MENU"))
            m_lessonMenu->addHint(menu);
    }
    markMenus();
    menus()->actions().first()->menu()->insertMenu(m_commands->action(Command::SaveBoard),
                                                   m_documentMenu->recentMenu());
    addDockMenu();
}

/// The titles, which can be seen all the time.
void MainWindow::markMenus()
{
    QStringList titles;
    const QList<QAction *> actions = menus()->actions();
    for (const QAction *action : actions)
        titles.append(action->text());
    titles = withMnemonics(titles);
    for (int index = 0; index < actions.size(); ++index)
        actions.at(index)->setText(titles.at(index));
}

void MainWindow::addDockMenu()
{
    QMenu *menu = m_viewMenu->addMenu(m_workspace->text("IDS_BOARD_DOCK"));
    auto *group = new QActionGroup(menu);
    const QPair<Qt::Edge, const char *> edges[] = {{Qt::LeftEdge, "IDS_BOARD_DOCK_LEFT"},
                                                   {Qt::RightEdge, "IDS_BOARD_DOCK_RIGHT"},
                                                   {Qt::TopEdge, "IDS_BOARD_DOCK_TOP"},
                                                   {Qt::BottomEdge, "IDS_BOARD_DOCK_BOTTOM"}};
    for (const auto &entry : edges) {
        const Qt::Edge edge = entry.first;
        QAction *action =
            menu->addAction(m_workspace->text(entry.second), this, [this, edge] { setDockEdge(edge); });
        action->setCheckable(true);
        group->addAction(action);
        connect(menu, &QMenu::aboutToShow, action,
                [this, action, edge] { action->setChecked(m_dock->edge() == edge); });
    }
    menu->addSeparator();
    QAction *large = menu->addAction(m_workspace->text("IDS_BOARD_LARGE_TOOLS"));
    large->setCheckable(true);
    connect(large, &QAction::triggered, this, &MainWindow::setLargeTools);
    connect(menu, &QMenu::aboutToShow, large, [large] { large->setChecked(areSizesLarge()); });
}

void MainWindow::connectLessons()
{
    m_lessonMenu->addKeysTo(m_view);
    connect(m_lessons, &LessonController::shownPageChanged, this, [this] {
        m_lock.setLocked(m_lessons->isShowing());
        m_dock->setBlocked(m_lessons->isShowing());
        m_commands->setEditingBlocked(m_lessons->isShowing());
        showCurrentPage();
    });
    m_recovery->setCompletion([this] { m_lessons->keepSoFar(); });
    auto *offer = new TakeOverOffer(m_workspace, m_notices, m_lessons, this);
    connect(m_dock, &Dock::pressedInVain, this, [=](const QString &name, std::optional<Tool> tool) {
        QPushButton *answer = offer->make(name, [=] {
            m_view->setFocus();
            m_dock->use(tool);
        });
        // Who has pressed a key goes on with keys.
        if (answer && m_dock->isAncestorOf(QApplication::focusWidget()))
            answer->setFocus(Qt::OtherFocusReason);
    });
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
    connect(m_dock, &Dock::dragged, this, &MainWindow::followDrag);
    // The bar of notices changes the layout below the finger only after its press.
    connect(m_dock, &Dock::touched, this, &MainWindow::offerLargeTools, Qt::QueuedConnection);
    connect(m_view->writing(), &LabelWriting::begun, m_dock, [this] { m_dock->setWriting(true); });
    connect(m_view->writing(), &LabelWriting::ended, m_dock, [this] { m_dock->setWriting(false); });
    connect(m_dock, &Dock::writingDone, m_view->writing(), &LabelWriting::end);
    m_commands->perform(Command::Shapes, this, [this] { chooseShape(); });
    m_commands->perform(Command::InsertAnything, this, [this] { askAndInsert(); });
    connect(m_dock, &Dock::shapesRequested, m_commands->action(Command::Shapes), &QAction::trigger);
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

/// The panel shows the same, and more.
void MainWindow::addStyleBar()
{
    auto *bar = new StyleBar(m_workspace, m_commands, m_tools, m_view);
    connect(m_panel, &Drawer::openChanged, bar, &StyleBar::setReplaced);
    bar->setReplaced(m_panel->isOpen());
    const auto *typing = new TypingBar(m_workspace, m_commands, m_view);
    connect(typing, &TypingBar::settingsRequested, this, [this] {
        raisePanel(m_object);
        m_object->showText();
    });
    new WindowParts(m_commands,
                    {m_view, bar, m_findBar, m_dock, m_shelf, m_penOptions, m_paletteDrawer, m_panel, m_pages,
                     m_lessonBar, m_topBar, m_notices},
                    this);
}

void MainWindow::connectParts()
{
    connect(m_workspace, &Workspace::documentReplaced, this, &MainWindow::connectDocument);
    connect(m_workspace, &Workspace::kindsChanged, m_palette, &PalettePanel::showKinds);
    // Problems turn up in the middle of opening and drawing.
    connect(m_workspace, &Workspace::pluginProblemFound, this, &MainWindow::showPluginProblems,
            Qt::QueuedConnection);
    m_documents->setSettle([this] { settle(); });
    connect(m_actions, &Actions::aboutToStep, m_object, &ObjectPanel::settle);
    connect(m_documents, &DocumentController::worksheetChosen, m_worksheets, &Worksheets::insert);
    connect(m_worksheets, &Worksheets::inserted, m_view, QOverload<>::of(&QWidget::setFocus));
    connect(m_documents, &DocumentController::stateChanged, this, &MainWindow::showTitle);
    m_view->setDropTest([this](const QMimeData &data) {
        return !droppedDocument(data).isEmpty() || !droppedPdf(data).isEmpty() || m_clipboard->accepts(data);
    });
    connect(m_view, &PageView::dataDropped, this, &MainWindow::takeDrop);
    auto *exporter = new Exporter(m_workspace, m_documents, m_notices, this);
    m_commands->perform(Command::Export, exporter, [=] { exporter->ask(); });
    auto *printing = new Printing(m_workspace, m_documents, m_notices, this);
    m_commands->perform(Command::Print, printing, [=] { printing->ask(); });
    connect(m_actions->about, &QAction::triggered, this, &MainWindow::showAbout);
    m_commands->perform(Command::AllProperties, this, [this] { raisePanel(properties()); });
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
    m_object->setPage(page);
    m_outline->setPage(page);
    if (page) {
        connect(page, &pagehost::Page::selectionChanged, this, &MainWindow::showSelection);
        connect(page, &pagehost::Page::contentChanged, this, &MainWindow::showSelection);
    }
    showSelection();
}

void MainWindow::takeDrop(const QMimeData &data, const QPointF &scenePos)
{
    const QString file = droppedDocument(data);
    const QString worksheet = droppedPdf(data);
    if (!file.isEmpty())
        m_documents->open(file);
    else if (!worksheet.isEmpty())
        m_worksheets->insert(worksheet);
    else
        m_clipboard->drop(data, scenePos);
}

void MainWindow::showSelection()
{
    // At once: the next key that is pressed may be theirs.
    m_actions->update();
    m_clipboardMenu->update();
    m_refreshHint.request();
}

void MainWindow::showHint()
{
    QString hint;
    // The timeline shows moments at the foot.
    if (m_lessons->isShowing())
        return m_hint->showHint(m_workspace->text("IDS_LESSON_HINT"), Qt::TopEdge);
    if (!m_shapeTool->waitingKind().isEmpty())
        hint = m_workspace->text("IDS_BOARD_HINT_DRAW")
                   .arg(m_workspace->text(m_workspace->registry().kind(m_shapeTool->waitingKind()).nameKey));
    m_hint->showHint(hint);
}

void MainWindow::chooseShape()
{
    // The key and the button close what they have opened.
    m_paletteDrawer->setOpen(!m_paletteDrawer->isOpen() || m_paletteDrawer->isPinned());
    if (m_paletteDrawer->isOpen())
        m_palette->startSearch();
}

void MainWindow::beginCreation(const QString &kindId)
{
    if (!m_paletteDrawer->isPinned())
        m_paletteDrawer->setOpen(false);
    m_shapeTool->begin(kindId);
    m_view->setFocus();
    if (!kindId.isEmpty())
        m_palette->remember(kindId);
}

void MainWindow::placeInMiddle(const QString &kindId)
{
    if (!m_paletteDrawer->isPinned())
        m_paletteDrawer->setOpen(false);
    const QPointF middle = m_view->mapToScene(m_view->viewport()->rect().center());
    m_shapeTool->place(kindId, middle - halfUsualSize);
    m_palette->remember(kindId);
}

/// Drawings and pictures, into the middle of what is seen.
void MainWindow::askAndInsert()
{
    auto *dialog = new QFileDialog(this, m_commands->name(Command::InsertAnything), m_documents->folder());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilter(m_workspace->text("IDS_BOARD_INSERTABLE") +
                          QStringLiteral(" (*.svg *.png *.jpg *.jpeg *.gif *.bmp *.pdf)"));
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &file) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        takeDrop(data, m_view->mapToScene(m_view->viewport()->rect().center()));
    });
    dialog->open();
}

void MainWindow::showAbout()
{
    auto *box =
        new QMessageBox(QMessageBox::NoIcon, m_workspace->text("IDS_BOARD_TITLE"),
                        m_workspace->text("IDS_BOARD_ABOUT_TEXT").arg(QCoreApplication::applicationVersion()),
                        QMessageBox::Ok, this);
    const int side = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, box);
    box->setIconPixmap(windowIcon().pixmap(side, side));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

} // namespace board
