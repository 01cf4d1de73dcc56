#include "window/penoptions.h"

#include "core/commands.h"
#include "core/workspace.h"
#include "look/accessiblerole.h"
#include "look/linestart.h"
#include "look/sizes.h"
#include "look/theme.h"
#include "panels/colorbutton.h"
#include "panels/fields/captionedrow.h"
#include "tools/toolsettings.h"
#include "window/besideplace.h"
#include "window/shelf.h"
#include "window/shelfbutton.h"

#include <QtWidgets/QAction>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSlider>

namespace board {

namespace {

constexpr int usualWidth = 264;
constexpr int padding = 16;
constexpr int colorsInRow = 6;
/// A gap to the edges of the page's view.
constexpr int roomMargin = 4;
/// Strokes that stand for pens are as wide as these at most, logical pixels.
constexpr double widestStroke = 9;

QHBoxLayout *rowIn(QWidget *part)
{
    auto *row = new QHBoxLayout(part);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(smallGap);
    return row;
}

} // namespace

PenOptions::PenOptions(const Parts &parts, QWidget *view)
    : Drawer(view, nullptr, usualWidth, roomMargin, QWIDGETSIZE_MAX)
    , m_workspace(parts.workspace)
    , m_commands(parts.commands)
    , m_tools(parts.tools)
    , m_settings(parts.settings)
    , m_shelf(parts.shelf)
{
    setObjectName(QStringLiteral("penOptions"));
    setAccessibleRole(this, QAccessible::Pane);
    setAccessibleName(m_workspace->text("IDS_BOARD_TOOL_OPTIONS"));
    addOpener(m_shelf);
    setHeir(view);
    setPlace([this, view](const QSize &size) {
        const QRect room = view->rect().adjusted(roomMargin, roomMargin, -roomMargin, -roomMargin);
        return placeBeside(m_shelf->geometry(), m_shelf->edge(), size, room);
    });
    connect(m_shelf, &Shelf::optionsRequested, this, &PenOptions::toggle);
    connect(m_tools, &ToolChoice::changed, this, &PenOptions::followTool);
    connect(m_settings, &ToolSettings::changed, this, [this] {
        if (isOpen())
            showSettings();
    });
    m_commands->perform(Command::PenOptions, this, [this] { toggle(); });
}

bool PenOptions::hasOptions() const
{
    return m_settings->pens(m_tools->tool()).size() > 1;
}

void PenOptions::toggle()
{
    if (isOpen())
        return setOpen(false);
    if (!hasOptions())
        m_tools->choose(Tool::Pen);
    if (!hasOptions())
        return;
    fill();
    showSettings();
    setOpen(true);
    m_pens.value(m_settings->pen(m_tool))->setFocus();
}

void PenOptions::followTool()
{
    if (isOpen() && m_tools->tool() != m_tool)
        setOpen(false);
}

void PenOptions::fill()
{
    m_tool = m_tools->tool();
    delete m_content;
    m_content = new QWidget(this);
    auto *column = new QVBoxLayout(m_content);
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(largeGap);
    const bool isPen = m_tool == Tool::Pen;
    auto *title = new QLabel(m_commands->name(isPen ? Command::PenTool : Command::HighlighterTool));
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    for (QWidget *part : {static_cast<QWidget *>(title), makePens(), makeColors(), makeWidth(), makeBoxes()})
        column->addWidget(part);
    setContent(m_content);
}

QWidget *PenOptions::makePens()
{
    auto *part = new QWidget;
    QHBoxLayout *row = rowIn(part);
    m_pens.clear();
    for (int i = 0; i < m_settings->pens(m_tool).size(); ++i) {
        auto *button = new ShelfButton(widestStroke, m_workspace->text("IDS_BOARD_MY_PEN").arg(i + 1), part);
        button->setSide(sizes().barButton);
        connect(button, &QToolButton::clicked, this, [this, i] { m_settings->takePen(m_tool, i); });
        row->addWidget(button);
        m_pens.append(button);
    }
    row->addStretch();
    return new CaptionedRow(m_workspace->text("IDS_BOARD_MY_PENS"), part);
}

ShelfButton *PenOptions::makeColor(const QColor &color)
{
    auto *button = new ShelfButton(color, m_workspace->text(ToolSettings::colorKey(color)), nullptr);
    button->setSide(sizes().barButton);
    connect(button, &QToolButton::clicked, this, [this, color] { m_settings->setColor(m_tool, color); });
    m_colors.append(button);
    return button;
}

QWidget *PenOptions::makeColors()
{
    auto *part = new QWidget;
    auto *grid = new QGridLayout(part);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(smallGap);
    m_colors.clear();
    const QVector<QColor> colors = m_settings->moreColors(m_tool);
    for (int i = 0; i < colors.size(); ++i)
        grid->addWidget(makeColor(colors.at(i)), i / colorsInRow, i % colorsInRow);
    m_anyColor = new ColorButton(m_workspace, m_workspace->text("IDS_BOARD_ANY_COLOR"));
    connect(m_anyColor, &ColorButton::colorPicked, this,
            [this](const QColor &color) { m_settings->setColor(m_tool, QColor(color.rgb())); });
    auto *any = new QWidget;
    QHBoxLayout *row = rowIn(any);
    row->addWidget(m_anyColor);
    row->addStretch();
    auto *all = new QWidget;
    auto *column = new QVBoxLayout(all);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(mediumGap);
    column->addWidget(part, 0, lineStart());
    column->addWidget(new CaptionedRow(m_workspace->text("IDS_BOARD_ANY_COLOR"), any));
    return all;
}

QWidget *PenOptions::makeWidth()
{
    auto *part = new QWidget;
    m_width = new QSlider(Qt::Horizontal);
    m_widthText = new QLabel;
    const QVector<double> widths = m_settings->widths(m_tool);
    m_width->setRange(int(widths.first()), int(widths.last()));
    m_width->setAccessibleName(m_workspace->text("IDS_BOARD_WIDTH"));
    m_widthText->setMinimumWidth(m_widthText->fontMetrics().horizontalAdvance(QStringLiteral("00 px")));
    m_widthText->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(m_width, &QSlider::valueChanged, this, [this](int width) {
        // The width that is shown may lie between two whole ones.
        if (width != qRound(m_settings->width(m_tool)))
            m_settings->setWidth(m_tool, width);
    });
    QHBoxLayout *row = rowIn(part);
    row->addWidget(m_width, 1);
    row->addWidget(m_widthText);
    return new CaptionedRow(m_workspace->text("IDS_BOARD_WIDTH"), part);
}

QWidget *PenOptions::makeBoxes()
{
    auto *part = new QWidget;
    auto *column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(mediumGap);
    m_pressure = new QCheckBox(m_workspace->text("IDS_BOARD_PRESSURE"));
    m_straight = new QCheckBox(m_workspace->text("IDS_BOARD_STRAIGHTEN"));
    const QAction *fingers = m_commands->action(Command::FingersDraw);
    auto *withFingers = new QCheckBox(m_commands->name(Command::FingersDraw));
    withFingers->setChecked(fingers->isChecked());
    for (QCheckBox *box : {m_pressure, m_straight, withFingers})
        column->addWidget(box);
    connect(m_pressure, &QCheckBox::clicked, this, [this](bool on) { m_settings->setUsesPressure(m_tool, on); });
    connect(m_straight, &QCheckBox::clicked, this, [this](bool on) { m_settings->setStraightens(m_tool, on); });
    connect(withFingers, &QCheckBox::clicked, fingers, &QAction::trigger);
    connect(fingers, &QAction::toggled, withFingers, &QCheckBox::setChecked);
    return part;
}

void PenOptions::showSettings()
{
    const QVector<PenLook> pens = m_settings->pens(m_tool);
    const double widest = m_width->maximum();
    for (int i = 0; i < pens.size(); ++i) {
        m_pens.at(i)->setStroke(pens.at(i).color, 1 + (widestStroke - 1) * pens.at(i).width / widest);
        m_pens.at(i)->setChecked(i == m_settings->pen(m_tool));
    }
    const QColor color = m_settings->color(m_tool);
    const QVector<QColor> colors = m_settings->moreColors(m_tool);
    for (int i = 0; i < colors.size(); ++i)
        m_colors.at(i)->setChecked(colors.at(i) == color);
    m_anyColor->setColor(color);
    const double width = m_settings->width(m_tool);
    m_width->setValue(qRound(width));
    m_widthText->setText(QStringLiteral("%1 px").arg(width));
    m_pressure->setChecked(m_settings->usesPressure(m_tool));
    m_straight->setChecked(m_settings->straightens(m_tool));
}

} // namespace board
