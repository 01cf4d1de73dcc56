#include "window/shelf.h"

#include "core/workspace.h"
#include "look/accessiblerole.h"
#include "look/dockbutton.h"
#include "look/sizes.h"
#include "look/surface.h"
#include "look/surfaceshadow.h"
#include "look/theme.h"
#include "tools/toolsettings.h"
#include "window/shelfbutton.h"

#include <QtCore/QEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtWidgets/QActionGroup>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QMenu>

namespace board {

namespace {

/// From the end of the dock to the first tool with a shelf.
constexpr int startGap = 60;
constexpr int sideGap = 6;
constexpr int lineInset = 4;
/// Dots are equal in pictures of such sides.
constexpr int pictureStep = 12;
/// Strokes that stand for widths, the narrowest and the widest.
constexpr double thinnest = 2;
constexpr double thickest = 9;
/// Letters that stand for their sizes.
constexpr double lowest = 11;
constexpr double highest = 23;

} // namespace

Shelf::Shelf(const Workspace *workspace, const ToolChoice *tools, ToolSettings *settings, QWidget *view)
    : QWidget(view)
    , m_workspace(workspace)
    , m_tools(tools)
    , m_settings(settings)
    , m_row(new QBoxLayout(QBoxLayout::TopToBottom, this))
{
    setObjectName(QStringLiteral("shelf"));
    setLayoutDirection(QGuiApplication::layoutDirection());
    setAccessibleRole(this, QAccessible::ToolBar);
    setAccessibleName(workspace->text("IDS_BOARD_SHELF"));
    m_row->setContentsMargins(0, 0, 0, 0);
    new SurfaceShadow(this, view);
    view->installEventFilter(this);
    connect(tools, &ToolChoice::changed, this, &Shelf::rebuild);
    connect(settings, &ToolSettings::changed, this, &Shelf::rebuild);
    followSizes(this, [this] { rebuild(); });
}

void Shelf::setEdge(Qt::Edge edge)
{
    m_edge = edge;
    rebuild();
}

void Shelf::setCovered(bool covered)
{
    m_isCovered = covered;
    rebuild();
}

bool Shelf::isVertical() const
{
    return m_edge == Qt::LeftEdge || m_edge == Qt::RightEdge;
}

void Shelf::rebuild()
{
    const Tool tool = m_tools->tool();
    if (m_content) {
        // One of its buttons may be telling its choice just now.
        m_content->hide();
        m_content->deleteLater();
        m_row->removeWidget(m_content);
        m_content = nullptr;
    }
    const bool hasChoices = !m_settings->colors(tool).isEmpty() || !m_settings->widths(tool).isEmpty();
    const bool isNeeded = hasChoices && !m_isCovered;
    setVisible(isNeeded);
    if (!isNeeded)
        return;
    m_content = new QWidget(this);
    auto *column = new QBoxLayout(isVertical() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, m_content);
    column->setContentsMargins(sideGap, sideGap, sideGap, sideGap);
    column->setSpacing(smallGap);
    addColors(tool);
    if (!m_settings->colors(tool).isEmpty())
        addLine();
    addWidths(tool);
    if (!m_settings->variants(tool).isEmpty()) {
        addLine();
        addVariants(tool);
    }
    if (m_settings->pens(tool).size() > 1) {
        addLine();
        addOptions();
    }
    m_row->addWidget(m_content);
    m_content->show();
    place();
}

void Shelf::addColors(Tool tool)
{
    const QVector<QColor> colors = m_settings->colors(tool);
    for (const QColor &color : colors) {
        auto *button = new ShelfButton(color, m_workspace->text(ToolSettings::colorKey(color)), m_content);
        button->setSide(sizes().shelf - 2 * sideGap);
        button->setChecked(color == m_settings->color(tool));
        connect(button, &QToolButton::clicked, this, [this, tool, color] { m_settings->setColor(tool, color); });
        m_content->layout()->addWidget(button);
    }
}

void Shelf::addWidths(Tool tool)
{
    const QVector<double> widths = m_settings->widths(tool);
    for (int i = 0; i < widths.size(); ++i) {
        const double width = widths.at(i);
        const double step = i / double(qMax(1, widths.size() - 1));
        const char *nameKey = tool == Tool::Text ? "IDS_BOARD_TOOL_LETTERS" : "IDS_BOARD_TOOL_WIDTH";
        auto *button = new ShelfButton(thinnest + (thickest - thinnest) * step,
                                       m_workspace->text(nameKey).arg(width), m_content);
        if (tool == Tool::Text)
            button->setLetter(qRound(lowest + (highest - lowest) * step));
        button->setSide(sizes().shelf - 2 * sideGap);
        button->setChecked(qFuzzyCompare(width, m_settings->width(tool)));
        connect(button, &QToolButton::clicked, this, [this, tool, width] { m_settings->setWidth(tool, width); });
        m_content->layout()->addWidget(button);
    }
}

QToolButton *Shelf::addMore(const QString &name)
{
    auto *button = new DockButton(m_content);
    const int side = sizes().shelf - 2 * sideGap;
    button->setPicture(Icon::More);
    button->setPictureSide(side / pictureStep * pictureStep);
    button->setFixedSize(side, side);
    button->setToolTip(name);
    button->setAccessibleName(name);
    m_content->layout()->addWidget(button);
    return button;
}

void Shelf::addOptions()
{
    QToolButton *button = addMore(m_workspace->text("IDS_BOARD_TOOL_OPTIONS"));
    connect(button, &QToolButton::clicked, this, &Shelf::optionsRequested);
}

void Shelf::addVariants(Tool tool)
{
    QToolButton *button = addMore(m_workspace->text("IDS_BOARD_MORE"));
    button->setPopupMode(QToolButton::InstantPopup);
    auto *menu = new QMenu(button);
    auto *group = new QActionGroup(menu);
    const QVector<QString> variants = m_settings->variants(tool);
    for (int i = 0; i < variants.size(); ++i) {
        QAction *action =
            menu->addAction(m_workspace->text(variants.at(i)), this, [=] { m_settings->setVariant(tool, i); });
        action->setCheckable(true);
        action->setChecked(i == m_settings->variant(tool));
        group->addAction(action);
    }
    button->setMenu(menu);
}

void Shelf::addLine()
{
    auto *line = new QWidget(m_content);
    const int length = sizes().shelf - 2 * sideGap - 2 * lineInset;
    line->setFixedSize(isVertical() ? length : 1, isVertical() ? 1 : length);
    line->setAutoFillBackground(true);
    line->setBackgroundRole(QPalette::Mid);
    m_content->layout()->addWidget(line);
    m_content->layout()->setAlignment(line, Qt::AlignCenter);
}

/// As near to the tools as there is room.
void Shelf::place()
{
    const QSize room = parentWidget()->size();
    const QSize size = sizeHint();
    const int length = isVertical() ? size.height() : size.width();
    const int available = isVertical() ? room.height() : room.width();
    const int start = qMax(0, qMin(startGap, available - length));
    QPoint pos = isVertical() ? QPoint(shelfGap, start) : QPoint(start, shelfGap);
    if (m_edge == Qt::RightEdge)
        pos.setX(room.width() - sizes().shelf - shelfGap);
    if (m_edge == Qt::BottomEdge)
        pos.setY(room.height() - sizes().shelf - shelfGap);
    setGeometry(QRect(pos, isVertical() ? QSize(sizes().shelf, length) : QSize(length, sizes().shelf)));
}

bool Shelf::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        place();
    return QWidget::eventFilter(watched, event);
}

void Shelf::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintSurface(&painter, *this);
}

} // namespace board
