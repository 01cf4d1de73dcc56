#include "window/topbar.h"

#include "core/actions.h"
#include "core/workspace.h"
#include "look/accessiblerole.h"
#include "look/icons.h"
#include "look/sizes.h"
#include "look/theme.h"
#include "page/pageview.h"
#include "window/barbutton.h"
#include "window/menurow.h"
#include "window/zoomcontrol.h"

#include <QtGui/QPainter>
#include <QtWidgets/QAction>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolButton>

namespace board {

namespace {

/// Folds of a bar that is too narrow, in their order.
enum Fold { MenusFold = 1, SavedFold, CommandsFold, ZoomFold, SwitchesFold };
constexpr int lineLength = 20;
constexpr int dotSide = 8;

BarButton *barButton(QAction *action, QWidget *parent)
{
    auto *button = new BarButton(parent);
    button->setDefaultAction(action);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QToolButton *pictureButton(QAction *action, Icon picture, QWidget *parent)
{
    QToolButton *button = barButton(action, parent);
    button->setIcon(icon(picture));
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    return button;
}

} // namespace

TopBar::TopBar(Workspace *workspace, const Actions *actions, PageView *view, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_row(new QHBoxLayout(this))
    , m_menus(new MenuRow(this))
    , m_allMenus(new QMenu(this))
    , m_menuButton(new BarButton(this))
    , m_saved(new QLabel(this))
    , m_dot(new QLabel(this))
    , m_pages(new QWidget(this))
    , m_pageNumber(new QLabel(m_pages))
    , m_zoom(new ZoomControl(workspace, actions, view, this))
{
    setObjectName(QStringLiteral("topBar"));
    setAccessibleRole(this, QAccessible::ToolBar);
    setAccessibleName(workspace->text("IDS_BOARD_TOP_BAR"));
    m_menus->setNativeMenuBar(false);
    m_menus->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_menuButton->setText(workspace->text("IDS_BOARD_MENU"));
    m_menuButton->setIcon(icon(Icon::Menu));
    m_menuButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_menuButton->setPopupMode(QToolButton::InstantPopup);
    m_menuButton->setMenu(m_allMenus);
    m_saved->setForegroundRole(QPalette::PlaceholderText);
    setAccessibleRole(m_saved, QAccessible::AlertMessage);
    m_dot->setFixedSize(dotSide, dotSide);
    m_row->setContentsMargins(mediumGap - 2, 0, mediumGap, 1);
    m_row->setSpacing(smallGap);
    m_row->addWidget(m_menus);
    m_row->addWidget(m_menuButton);
    m_row->addStretch();
    m_row->addWidget(m_saved);
    m_row->addWidget(m_dot);
    m_row->addSpacing(mediumGap);
    addPages(*actions);
    addLine(this);
    m_row->addWidget(m_zoom);
    addLine(this);
    followDocument();
    followSizes(this, [this] {
        applyHeight();
        measure();
    });
    connect(workspace, &Workspace::documentReplaced, this, &TopBar::followDocument);
    showSaved(true, false);
}

void TopBar::addPages(const Actions &actions)
{
    auto *row = new QHBoxLayout(m_pages);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(smallGap);
    m_pageNumber->setAlignment(Qt::AlignCenter);
    row->addWidget(pictureButton(actions.previousPage, Icon::Previous, m_pages));
    row->addWidget(m_pageNumber);
    row->addWidget(pictureButton(actions.nextPage, Icon::Next, m_pages));
    m_row->addWidget(m_pages);
}

void TopBar::addLine(QWidget *parent)
{
    auto *line = new QWidget(parent);
    line->setFixedSize(1, lineLength);
    line->setAutoFillBackground(true);
    line->setBackgroundRole(QPalette::Mid);
    m_row->addWidget(line);
}

QMenu *TopBar::addMenu(const QString &title)
{
    QMenu *menu = m_menus->addMenu(title);
    m_allMenus->addMenu(menu);
    measure();
    return menu;
}

void TopBar::addCommand(QAction *action)
{
    BarButton *button = barButton(action, this);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_row->addWidget(button);
    m_commands.append(button);
    connect(action, &QAction::changed, this, &TopBar::measure);
    applyHeight();
    measure();
}

void TopBar::addPrimary(QAction *action, Icon picture)
{
    addCommand(action);
    BarButton *button = m_commands.last();
    button->setPrimary(true);
    // A change of the action brings the action's picture back.
    const auto showPicture = [=] { button->setIcon(icon(picture, QPalette::HighlightedText)); };
    connect(action, &QAction::changed, button, showPicture);
    showPicture();
}

void TopBar::addSwitch(QAction *action)
{
    m_switches.append(barButton(action, this));
    m_row->addWidget(m_switches.last());
    applyHeight();
    measure();
}

void TopBar::addPageSwitch(QAction *action)
{
    m_switches.append(barButton(action, m_pages));
    static_cast<QHBoxLayout *>(m_pages->layout())->insertWidget(1, m_switches.last());
    applyHeight();
    measure();
}

void TopBar::takeTools(QWidget *tools, Qt::Edge edge)
{
    m_tools = tools;
    m_edge = edge;
    m_row->insertWidget(m_row->indexOf(m_pages) + 1, tools, 1);
    applyHeight();
    measure();
    update();
}

void TopBar::giveTools()
{
    if (m_tools)
        m_row->removeWidget(m_tools);
    m_tools = nullptr;
    m_edge = Qt::TopEdge;
    applyHeight();
    measure();
    update();
}

int TopBar::barHeight() const
{
    return m_tools ? sizes().dock : sizes().topBar;
}

void TopBar::applyHeight()
{
    setFixedHeight(barHeight());
    // A line at the side of the page.
    m_row->setContentsMargins(mediumGap - 2, 0, mediumGap, m_tools ? 0 : 1);
    const int side = sizes().barButton;
    const int picture = sizes().barIcon;
    const QList<QToolButton *> buttons = findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (m_tools && m_tools->isAncestorOf(button))
            continue;
        button->setFixedHeight(side);
        button->setMinimumWidth(side);
        button->setIconSize(QSize(picture, picture));
    }
}

void TopBar::showSaved(bool isSaved, bool hasFile)
{
    const ThemeColors colors = themeColors();
    const QString text = m_workspace->text(isSaved ? "IDS_BOARD_IS_SAVED" : "IDS_BOARD_UNSAVED");
    if (isSaved && hasFile && text != m_saved->text())
        announce(m_saved, text);
    m_saved->setAccessibleName(text);
    m_saved->setText(text);
    m_dot->setToolTip(m_saved->text());
    m_dot->setAccessibleName(m_saved->text());
    m_dot->setStyleSheet(QStringLiteral("background: %1; border-radius: %2px")
                             .arg((isSaved ? colors.good : colors.warn).name())
                             .arg(dotSide / 2));
    m_showsSaved = hasFile || !isSaved;
    measure();
}

void TopBar::followDocument()
{
    const pagehost::Document *document = m_workspace->document();
    connect(document, &pagehost::Document::currentPageChanged, this, &TopBar::showPage);
    connect(document, &pagehost::Document::pageInserted, this, &TopBar::showPage);
    connect(document, &pagehost::Document::pageRemoved, this, &TopBar::showPage);
    connect(document, &pagehost::Document::pageMoved, this, &TopBar::showPage);
    showPage();
}

void TopBar::showPage()
{
    const pagehost::Document *document = m_workspace->document();
    const int page = document->currentIndex() + 1;
    m_pageNumber->setText(QStringLiteral("%1 / %2").arg(page).arg(document->pageCount()));
    m_pageNumber->setAccessibleName(m_workspace->text("IDS_BOARD_PAGE_OF").arg(page).arg(document->pageCount()));
    measure();
}

void TopBar::applyFolds(int folds)
{
    m_menus->setVisible(folds < MenusFold);
    m_menuButton->setVisible(folds >= MenusFold);
    m_saved->setVisible(m_showsSaved && folds < SavedFold);
    m_dot->setVisible(m_showsSaved && folds >= SavedFold);
    for (QToolButton *button : qAsConst(m_commands))
        button->setToolButtonStyle(folds < CommandsFold ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
    m_zoom->setFolded(folds >= ZoomFold);
    m_menuButton->setToolButtonStyle(m_tools ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
    for (QToolButton *button : qAsConst(m_switches))
        button->setVisible(folds < SwitchesFold);
}

int TopBar::firstFold() const
{
    return m_tools ? CommandsFold : 0;
}

int TopBar::lastFold() const
{
    return m_tools ? SwitchesFold : ZoomFold;
}

/// Looks how much room every fold leaves, then takes as few as are needed.
void TopBar::measure()
{
    m_widths.clear();
    for (int folds = 0; folds <= lastFold(); ++folds) {
        applyFolds(folds);
        m_row->invalidate();
        m_widths.append(m_row->sizeHint().width());
    }
    m_leastWidth = m_row->minimumSize().width();
    fold();
    updateGeometry();
}

void TopBar::fold()
{
    int folds = firstFold();
    while (folds < lastFold() && m_widths.value(folds) > width())
        ++folds;
    applyFolds(folds);
}

QSize TopBar::sizeHint() const
{
    return {m_widths.value(firstFold()), barHeight()};
}

QSize TopBar::minimumSizeHint() const
{
    return {m_leastWidth, barHeight()};
}

void TopBar::resizeEvent(QResizeEvent *)
{
    fold();
}

/// Only now styles have given the buttons their sizes.
void TopBar::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    const QList<QWidget *> parts = findChildren<QWidget *>();
    for (const QWidget *part : parts)
        part->ensurePolished();
    measure();
}

void TopBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), themeColors().bar);
    painter.fillRect(QRect(0, m_edge == Qt::TopEdge ? height() - edgeWidth() : 0, width(), edgeWidth()),
                     themeColors().border);
}

} // namespace board
