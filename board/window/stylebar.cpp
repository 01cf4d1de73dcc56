#include "window/stylebar.h"

#include "commands/menuplan.h"
#include "core/arranging.h"
#include "core/commands.h"
#include "core/workspace.h"
#include "look/accessiblerole.h"
#include "look/icons.h"
#include "look/sizedbuttons.h"
#include "look/sizes.h"
#include "look/surface.h"
#include "look/surfaceshadow.h"
#include "look/theme.h"
#include "page/pageview.h"
#include "panels/colorbutton.h"
#include "panels/selectionfill.h"
#include "panels/settings/settingspanel.h"
#include "panels/widthbutton.h"
#include "window/stylebarplace.h"

#include <pagehost/pagescene.h>
#include <pagehost/selection.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAction>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace board {

namespace {

constexpr int lineLength = 20;
/// Between the bar and the edges of the view.
constexpr int roomMargin = 4;
/// Of more objects than these, the rest are taken to be like them.
constexpr int mostDescribed = 500;

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

/// The value that all have; none where they differ.
template<typename Value, typename Read>
std::optional<Value> commonValue(const QVector<pagehost::ObjectStyle> &styles, const Read &read)
{
    const Value first = read(styles.first());
    const bool agree = std::all_of(styles.begin(), styles.end(),
                                   [&](const pagehost::ObjectStyle &style) { return read(style) == first; });
    return agree ? std::optional<Value>(first) : std::nullopt;
}

template<typename Has>
QVector<pagehost::ObjectStyle> thoseWith(const QVector<pagehost::ObjectStyle> &styles, const Has &has)
{
    QVector<pagehost::ObjectStyle> found;
    std::copy_if(styles.begin(), styles.end(), std::back_inserter(found), has);
    return found;
}

void showColor(ColorButton *button, const std::optional<QColor> &color)
{
    if (color)
        button->setColor(*color);
    else
        button->setMixed();
}

} // namespace

StyleBar::StyleBar(const Workspace *workspace, const Commands *commands, const ToolChoice *tools, PageView *view)
    : QWidget(view)
    , m_workspace(workspace)
    , m_commands(commands)
    , m_tools(tools)
    , m_view(view)
    , m_row(new QHBoxLayout(this))
    , m_fill(new ColorButton(workspace, workspace->text("IDS_BOARD_FILL_COLOR"), this))
    , m_outline(new ColorButton(workspace, workspace->text("IDS_BOARD_PEN_COLOR"), this))
    , m_width(new WidthButton(workspace, this))
    , m_setting(new SettingsPanel(workspace, SettingsPanel::First, this))
    , m_arrange([this] { arrange(); })
{
    setObjectName(QStringLiteral("styleBar"));
    setLayoutDirection(QGuiApplication::layoutDirection());
    setAccessibleRole(this, QAccessible::ToolBar);
    setAccessibleName(workspace->text("IDS_BOARD_STYLE_BAR"));
    m_row->setContentsMargins(smallGap, 0, smallGap, 0);
    m_row->setSpacing(smallGap);
    addLook();
    m_lookLine = addLine();
    m_row->addWidget(m_setting);
    m_settingLine = addLine();
    addCommands();
    new SurfaceShadow(this, view);
    view->installEventFilter(this);
    view->viewport()->installEventFilter(this);
    const auto request = [this] { m_arrange.request(); };
    connect(view, &PageView::pageShown, this, &StyleBar::followPage);
    connect(view, &PageView::zoomChanged, this, request);
    connect(view, &PageView::writingEnded, this, request);
    for (const QScrollBar *bar : {view->horizontalScrollBar(), view->verticalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, this, request);
    connect(tools, &ToolChoice::changed, this, request);
    hide();
    followPage();
}

void StyleBar::addLook()
{
    m_outline->showAsOutline();
    sizeAsStyleButton(m_width);
    for (ColorButton *button : {m_fill, m_outline})
        followSizes(button, [button] { button->setMinimumHeight(sizes().styleButton); });
    for (QToolButton *button : {static_cast<QToolButton *>(m_fill), static_cast<QToolButton *>(m_outline),
                                static_cast<QToolButton *>(m_width)}) {
        button->setFocusPolicy(Qt::TabFocus);
        m_row->addWidget(button);
    }
    connect(m_fill, &ColorButton::colorPicked, this,
            [this](const QColor &color) { giveFillColor(selection(), color); });
    connect(m_outline, &ColorButton::colorPicked, this,
            [this](const QColor &color) { pagehost::setPenColor(selection(), color); });
    connect(m_width, &WidthButton::widthPicked, this,
            [this](int width) { pagehost::setPenWidth(selection(), width); });
}

QToolButton *StyleBar::addButton(Icon picture, const QString &name)
{
    auto *button = new QToolButton(this);
    button->setIcon(icon(picture));
    sizeAsStyleButton(button);
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolTip(name);
    button->setAccessibleName(name);
    m_row->addWidget(button);
    return button;
}

void StyleBar::addCommands()
{
    const auto addMenu = [this](Icon picture, const char *nameKey, const MenuPlan &plan) {
        QToolButton *button = addButton(picture, m_workspace->text(nameKey));
        button->setPopupMode(QToolButton::InstantPopup);
        button->setMenu(new QMenu(button));
        fillMenu(button->menu(), plan, *m_commands, *m_workspace);
    };
    const auto addCommand = [this](Icon picture, Command command) {
        QToolButton *button = addButton(picture, {});
        button->setDefaultAction(m_commands->action(command));
        return button;
    };
    m_bringBack = addButton(Icon::BringBack, {});
    m_bringBack->setDefaultAction(m_commands->action(Command::BringBack));
    addMenu(Icon::ToFront, "IDS_BOARD_ORDER", orderMenuPlan());
    addCommand(Icon::Duplicate, Command::Duplicate);
    // Who has no keys deletes more often than locks.
    QToolButton *lock = addCommand(Icon::Lock, Command::Lock);
    QToolButton *remove = addCommand(Icon::Delete, Command::Delete);
    followSizes(this, [=] {
        lock->setVisible(!areSizesLarge());
        remove->setVisible(areSizesLarge());
        m_arrange.request();
    });
    addMenu(Icon::More, "IDS_BOARD_MORE", objectMenuPlan());
}

QWidget *StyleBar::addLine()
{
    auto *line = new QWidget(this);
    line->setFixedSize(1, lineLength);
    line->setAutoFillBackground(true);
    line->setBackgroundRole(QPalette::Mid);
    m_row->addWidget(line);
    return line;
}

void StyleBar::setReplaced(bool replaced)
{
    m_isReplaced = replaced;
    m_arrange.request();
}

void StyleBar::followPage()
{
    if (m_page)
        disconnect(m_page, nullptr, this, nullptr);
    m_page = m_view->page();
    m_setting->setPage(m_page);
    const auto request = [this] { m_arrange.request(); };
    if (m_page) {
        connect(m_page, &pagehost::Page::selectionChanged, this, request);
        connect(m_page, &pagehost::Page::contentChanged, this, request);
    }
    request();
}

QVector<CBaseObject *> StyleBar::selection() const
{
    return m_page ? m_page->selectedObjects() : QVector<CBaseObject *>();
}

bool StyleBar::isWanted() const
{
    return !m_isReplaced && !m_keyMoves && m_tools->tool() == Tool::Select && m_view->isEditable() &&
           !m_view->isWriting() && !m_page->scene()->isBusy() && !m_page->selectedObjects().isEmpty();
}

/// A mere press changes nothing: it may be a click.
void StyleBar::arrange()
{
    if (m_isPressed)
        return;
    if (!isWanted()) {
        // The page gets the keys back from a part that disappears.
        if (isAncestorOf(m_view->window()->focusWidget()))
            m_view->setFocus();
        return hide();
    }
    showValues(selection().mid(0, mostDescribed));
    m_setting->refresh();
    m_setting->setVisible(!m_setting->isEmpty());
    m_settingLine->setVisible(!m_setting->isEmpty());
    m_bringBack->setVisible(isOff(selection(), m_page->rect()));
    place();
    show();
    raise();
}

/// A part of the bar has got another size.
bool StyleBar::event(QEvent *event)
{
    const bool isDone = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest && isVisible())
        place();
    return isDone;
}

void StyleBar::showValues(const QVector<CBaseObject *> &objects)
{
    using pagehost::ObjectStyle;
    QVector<ObjectStyle> styles;
    for (CBaseObject *object : objects)
        styles.append(pagehost::styleOf(object));
    const auto filled = thoseWith(styles, [](const ObjectStyle &style) { return style.hasFill; });
    const auto outlined = thoseWith(styles, [](const ObjectStyle &style) { return style.hasPenColor; });
    const auto wide = thoseWith(styles, [](const ObjectStyle &style) { return style.hasPenWidth; });
    m_fill->setVisible(!filled.isEmpty());
    m_outline->setVisible(!outlined.isEmpty());
    m_width->setVisible(!wide.isEmpty());
    m_lookLine->setVisible(!filled.isEmpty() || !outlined.isEmpty() || !wide.isEmpty());
    if (!filled.isEmpty())
        showColor(m_fill, commonValue<QColor>(filled, [](const ObjectStyle &style) { return style.fill.color(); }));
    if (!outlined.isEmpty())
        showColor(m_outline,
                  commonValue<QColor>(outlined, [](const ObjectStyle &style) { return style.penColor; }));
    if (wide.isEmpty())
        return;
    const auto width = commonValue<int>(wide, [](const ObjectStyle &style) { return style.penWidth; });
    const auto least =
        std::min_element(wide.begin(), wide.end(), [](const ObjectStyle &one, const ObjectStyle &other) {
            return one.maxPenWidth < other.maxPenWidth;
        });
    m_width->showWidth(width.value_or(0), least->maxPenWidth);
}

QRect StyleBar::boxOf(const QRectF &sceneRect) const
{
    return m_view->mapFromScene(sceneRect).boundingRect().translated(m_view->viewport()->pos());
}

void StyleBar::place()
{
    StyleBarSurroundings around;
    around.room = m_view->viewport()->geometry().adjusted(roomMargin, roomMargin, -roomMargin, -roomMargin);
    around.frame = boxOf(m_page->scene()->frameBounds());
    const QVector<CBaseObject *> objects = m_page->objects();
    for (CBaseObject *object : objects) {
        QVector<QRect> &boxes = object->isSelected() ? around.selection : around.others;
        boxes.append(boxOf(pagehost::boundsOf({object})));
    }
    layout()->activate();
    setGeometry(styleBarPlace(QSize(sizeHint().width(), sizes().styleBar), around));
}

/// Other effects of keys are told by the page and the tools.
void StyleBar::setKeyMoves(bool moves)
{
    if (moves == m_keyMoves)
        return;
    m_keyMoves = moves;
    m_arrange.request();
}

bool StyleBar::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_isPressed = watched == m_view->viewport();
        break;
    case QEvent::MouseMove:
        if (m_isPressed)
            hide();
        break;
    case QEvent::MouseButtonRelease:
        m_isPressed = false;
        m_arrange.request();
        break;
    case QEvent::KeyPress:
        setKeyMoves(m_keyMoves || (watched == m_view && isArrow(static_cast<QKeyEvent *>(event)->key())));
        break;
    case QEvent::KeyRelease:
        setKeyMoves(m_keyMoves && static_cast<QKeyEvent *>(event)->isAutoRepeat());
        break;
    case QEvent::FocusOut:
        m_keyMoves = false;
        m_arrange.request();
        break;
    case QEvent::Resize:
        m_arrange.request();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void StyleBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintSurface(&painter, *this);
}

} // namespace board
