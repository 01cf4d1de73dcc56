#include "window/dock.h"

#include "core/commands.h"
#include "core/workspace.h"
#include "look/accessiblerole.h"
#include "look/dockbutton.h"
#include "look/sizes.h"
#include "look/theme.h"

#include <QtCore/QEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStyle>

#include <algorithm>
#include <utility>

namespace board {

namespace {

constexpr int edgeGap = 8;
/// From a button to that of the next group.
constexpr int groupGap = 12;
/// Of a line between groups, along the buttons.
constexpr int lineLength = 24;

struct ToolEntry
{
    std::optional<Tool> tool; ///< none for what is done at once
    Icon icon;
    Command command;
    int group;
    bool isRare;
};

constexpr ToolEntry toolEntries[] = {{Tool::Select, Icon::Select, Command::SelectTool, 0, false},
                                     {Tool::Pen, Icon::Pen, Command::PenTool, 1, false},
                                     {Tool::Highlighter, Icon::Highlighter, Command::HighlighterTool, 1, true},
                                     {Tool::Eraser, Icon::Eraser, Command::EraserTool, 1, false},
                                     {Tool::Text, Icon::Text, Command::TextTool, 2, false},
                                     {Tool::Line, Icon::Line, Command::LineTool, 2, false},
                                     {Tool::Connector, Icon::Connector, Command::ConnectorTool, 2, true},
                                     {Tool::Shape, Icon::Shapes, Command::Shapes, 3, false},
                                     {{}, Icon::Insert, Command::InsertAnything, 3, true}};

/// Tools that stay in use anyway.
bool hasOptions(Tool tool)
{
    return tool == Tool::Pen || tool == Tool::Highlighter;
}

} // namespace

Dock::Dock(const Workspace *workspace, const Commands *commands, ToolChoice *tools, QWidget *parent)
    : QWidget(parent)
    , m_commands(commands)
    , m_tools(tools)
    , m_more(new DockButton(this))
    , m_moreMenu(new QMenu(m_more))
{
    setObjectName(QStringLiteral("dock"));
    setAccessibleRole(this, QAccessible::ToolBar);
    setAccessibleName(workspace->text("IDS_BOARD_TOOLS"));
    addTools();
    m_more->setPicture(Icon::More);
    m_more->setMenu(m_moreMenu);
    m_more->setToolTip(workspace->text("IDS_BOARD_MORE"));
    m_more->setAccessibleName(m_more->toolTip());
    addEnds();
    const QList<DockButton *> buttons = findChildren<DockButton *>();
    for (DockButton *button : buttons) {
        button->setAttribute(Qt::WA_AcceptTouchEvents);
        button->installEventFilter(this);
    }
    connect(tools, &ToolChoice::changed, this, &Dock::showChoice);
    connect(tools, &ToolChoice::offersChanged, this, &Dock::showOffers);
    connect(commands, &Commands::keysChanged, this, &Dock::describeTools);
    describeTools();
    showChoice();
    followSizes(this, [this] { showOffers(); });
}

void Dock::addTools()
{
    for (const ToolEntry &entry : toolEntries) {
        auto *button = new DockButton(this);
        button->setCheckable(entry.tool.has_value());
        button->setPicture(entry.icon);
        button->setOpensMore(entry.tool == Tool::Shape || (entry.tool && hasOptions(*entry.tool)));
        if (!entry.tool)
            m_insert = button;
        const std::optional<Tool> tool = entry.tool;
        connect(button, &QToolButton::clicked, this, [this, tool] { press(tool); });
        m_entries.append({button, tool, entry.group, entry.isRare});
    }
}

void Dock::addEnds()
{
    const std::pair<QAction *, Icon> ends[] = {{m_commands->action(Command::Redo), Icon::Redo},
                                               {m_commands->action(Command::Undo), Icon::Undo}};
    for (const auto &[action, picture] : ends) {
        auto *button = new DockButton(this);
        button->setDefaultAction(action);
        button->setPicture(picture);
        m_ends.append(button);
    }
}

void Dock::describeTools()
{
    for (const ToolEntry &entry : toolEntries) {
        DockButton *button = entry.tool ? buttonOf(*entry.tool) : m_insert;
        const QAction *action = m_commands->action(entry.command);
        button->setToolTip(action->toolTip());
        button->setAccessibleName(m_commands->name(entry.command));
        button->setAccessibleDescription(action->shortcut().toString(QKeySequence::NativeText));
    }
}

DockButton *Dock::buttonOf(Tool tool) const
{
    const auto found =
        std::find_if(m_entries.begin(), m_entries.end(), [tool](const Entry &entry) { return entry.tool == tool; });
    return found == m_entries.end() ? nullptr : found->button;
}

/// A second press keeps the tool, or ends keeping it; pens stay anyway, and show their options.
void Dock::press(std::optional<Tool> tool)
{
    if (m_isWriting)
        Q_EMIT writingDone();
    if (m_blocked)
        Q_EMIT pressedInVain(tool ? buttonOf(*tool)->accessibleName() : m_insert->accessibleName(), tool);
    else if (tool && m_tools->tool() == *tool && hasOptions(*tool))
        Q_EMIT optionsRequested();
    else if (tool && tool != Tool::Shape && m_tools->tool() == *tool)
        m_tools->keep(!m_tools->isKept());
    else
        use(tool);
    // The press has checked or unchecked its button.
    showChoice();
}

void Dock::setWriting(bool isWriting)
{
    m_isWriting = isWriting;
    showChoice();
}

/// Shapes are chosen first.
void Dock::use(std::optional<Tool> tool)
{
    if (!tool)
        m_commands->action(Command::InsertAnything)->trigger();
    else if (tool == Tool::Shape)
        Q_EMIT shapesRequested();
    else if (m_tools->tool() != *tool)
        m_tools->choose(*tool);
}

void Dock::setBlocked(bool blocked)
{
    m_blocked = blocked;
    for (const Entry &entry : qAsConst(m_entries))
        entry.button->setGrey(blocked);
    m_more->setGrey(blocked);
    if (m_colors)
        m_colors->setEnabled(!blocked);
}

bool Dock::isOffered(const Entry &entry) const
{
    return !entry.tool || m_tools->isOffered(*entry.tool);
}

void Dock::showOffers()
{
    arrange();
    updateGeometry();
}

void Dock::showChoice()
{
    const Tool shown = m_isWriting ? Tool::Text : m_tools->tool();
    for (const Entry &entry : qAsConst(m_entries)) {
        const bool isChosen = entry.tool == shown;
        entry.button->setChecked(isChosen);
        entry.button->setKept(isChosen && m_tools->isKept());
    }
}

void Dock::setColors(QWidget *colors)
{
    m_colors = colors;
    colors->setParent(this);
    arrange();
}

void Dock::setEdge(Qt::Edge edge)
{
    m_edge = edge;
    const bool vertical = isVertical();
    setSizePolicy(vertical ? QSizePolicy::Fixed : QSizePolicy::Expanding,
                  vertical ? QSizePolicy::Expanding : QSizePolicy::Fixed);
    updateGeometry();
    arrange();
    update();
}

bool Dock::isVertical() const
{
    return m_edge == Qt::LeftEdge || m_edge == Qt::RightEdge;
}

/// Length of the bar that buttons of this measure take.
int Dock::needed(const Measure &measure) const
{
    int total = 2 * edgeGap + m_ends.size() * (measure.side + measure.gap) + groupGap;
    int group = -1;
    for (const Entry &entry : m_entries) {
        if (!isOffered(entry) || (measure.isFolded && entry.isRare))
            continue;
        total += measure.side + (entry.group == group || group < 0 ? measure.gap : groupGap);
        group = entry.group;
    }
    return total + (measure.isFolded ? measure.side + measure.gap : 0);
}

QVector<Dock::Measure> Dock::measures() const
{
    const int side = sizes().dockButton;
    if (areSizesLarge())
        return {{side, sizes().dockGap, false}, {side, 0, false}, {56, 0, false}, {56, 0, true}, {44, 0, true}};
    return {{side, sizes().dockGap, false},
            {side, 0, false},
            {DockButton::smallestSide, 0, false},
            {DockButton::smallestSide, 0, true}};
}

Dock::Measure Dock::fitting() const
{
    const QVector<Measure> all = measures();
    for (const int more : {neededForColors(), 0})
        for (const Measure &measure : all)
            if (needed(measure) + more <= length())
                return measure;
    return all.last();
}

int Dock::neededForColors() const
{
    return m_colors && !isVertical() ? 2 * groupGap + m_colors->sizeHint().width() : 0;
}

/// Between the tools and the far end.
void Dock::putColors(int start, int end)
{
    if (!m_colors)
        return;
    const bool isShown = !isVertical() && start + neededForColors() <= end;
    m_colors->setVisible(isShown);
    if (!isShown)
        return;
    const QSize size = m_colors->sizeHint();
    const QRect place(QPoint(start + groupGap, (thickness() - size.height()) / 2), size);
    m_colors->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
    m_lines.append(start + groupGap / 2);
    m_lines.append(place.right() + groupGap / 2);
}

int Dock::thickness() const
{
    return sizes().dock;
}

QSize Dock::minimumSizeHint() const
{
    const QVector<Measure> all = measures();
    const int least = needed(all.last());
    return isVertical() ? QSize(thickness(), least) : QSize(least, thickness());
}

QSize Dock::sizeHint() const
{
    const QVector<Measure> all = measures();
    const int usual = needed(all.first()) + neededForColors();
    return isVertical() ? QSize(thickness(), usual) : QSize(usual, thickness());
}

void Dock::put(DockButton *button, int start, int side)
{
    const int across = (thickness() - side) / 2;
    button->setPictureSide(sizes().dockIcon);
    const QRect place = isVertical() ? QRect(across, start, side, side) : QRect(start, across, side, side);
    button->setGeometry(QStyle::visualRect(isVertical() ? Qt::LeftToRight : layoutDirection(), rect(), place));
}

void Dock::arrange()
{
    const Measure measure = fitting();
    m_lines.clear();
    int at = edgeGap;
    int group = -1;
    for (const Entry &entry : qAsConst(m_entries)) {
        const bool isShown = isOffered(entry) && !(measure.isFolded && entry.isRare);
        entry.button->setVisible(isShown);
        if (!isShown)
            continue;
        if (group >= 0 && entry.group != group) {
            m_lines.append(at - measure.gap + groupGap / 2);
            at += groupGap - measure.gap;
        }
        group = entry.group;
        put(entry.button, at, measure.side);
        at += measure.side + measure.gap;
    }
    fillMore(measure.isFolded);
    if (measure.isFolded) {
        put(m_more, at, measure.side);
        at += measure.side + measure.gap;
    }
    int end = length() - edgeGap;
    for (DockButton *button : qAsConst(m_ends)) {
        end -= measure.side;
        put(button, end, measure.side);
        end -= measure.gap;
    }
    putColors(at - measure.gap, end);
    update();
}

void Dock::fillMore(bool folded)
{
    m_moreMenu->clear();
    for (const Entry &entry : qAsConst(m_entries)) {
        const std::optional<Tool> tool = entry.tool;
        if (folded && entry.isRare && isOffered(entry))
            m_moreMenu->addAction(entry.button->accessibleName(), this, [this, tool] { press(tool); });
    }
    m_more->setVisible(!m_moreMenu->isEmpty());
}

/// A touch that nobody takes becomes a press of the mouse.
bool Dock::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::TouchBegin)
        Q_EMIT touched();
    return QWidget::eventFilter(watched, event);
}

void Dock::resizeEvent(QResizeEvent *)
{
    arrange();
}

void Dock::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        arrange();
    QWidget::changeEvent(event);
}

void Dock::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor line = themeColors().border;
    painter.fillRect(rect(), themeColors().bar);
    for (const int at : qAsConst(m_lines)) {
        const int across = (thickness() - lineLength) / 2;
        const QRect place = isVertical() ? QRect(across, at, lineLength, 1) : QRect(at, across, 1, lineLength);
        painter.fillRect(QStyle::visualRect(isVertical() ? Qt::LeftToRight : layoutDirection(), rect(), place),
                         line);
    }
    switch (m_edge) {
    case Qt::LeftEdge:
        return painter.fillRect(QRect(width() - edgeWidth(), 0, edgeWidth(), height()), line);
    case Qt::RightEdge:
        return painter.fillRect(QRect(0, 0, edgeWidth(), height()), line);
    case Qt::TopEdge:
        return painter.fillRect(QRect(0, height() - edgeWidth(), width(), edgeWidth()), line);
    default:
        return painter.fillRect(QRect(0, 0, width(), edgeWidth()), line);
    }
}

void Dock::mousePressEvent(QMouseEvent *event)
{
    m_dragging = event->button() == Qt::LeftButton;
}

void Dock::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_dragging)
        return;
    setCursor(Qt::SizeAllCursor);
    if (!rect().contains(event->pos()))
        Q_EMIT dragged(event->globalPos());
}

void Dock::mouseReleaseEvent(QMouseEvent *)
{
    m_dragging = false;
    unsetCursor();
}

} // namespace board
