#include "core/toolcommands.h"

#include "core/commands.h"
#include "core/toolchoice.h"

#include <QtWidgets/QAction>

namespace board {

namespace {

struct ToolCommand
{
    Command command;
    Tool tool;
};

/// Shapes are chosen by kind, not here.
constexpr ToolCommand toolCommands[] = {
    {Command::SelectTool, Tool::Select},
    {Command::PenTool, Tool::Pen},
    {Command::HighlighterTool, Tool::Highlighter},
    {Command::EraserTool, Tool::Eraser},
    {Command::TextTool, Tool::Text},
    {Command::LineTool, Tool::Line},
    {Command::ConnectorTool, Tool::Connector},
    {Command::LaserTool, Tool::Laser},
};

} // namespace

ToolCommands::ToolCommands(Commands *commands, ToolChoice *tools, QObject *parent)
    : QObject(parent)
    , m_commands(commands)
    , m_tools(tools)
{
    commands->perform(Command::KeepTool, tools, [tools] { tools->keep(!tools->isKept()); });
    connect(tools, &ToolChoice::offersChanged, this, &ToolCommands::offer);
    connect(tools, &ToolChoice::changed, this, &ToolCommands::showChoice);
    offer();
}

void ToolCommands::offer()
{
    for (const ToolCommand &row : toolCommands) {
        if (m_commands->isPerformed(row.command) || !m_tools->isOffered(row.tool))
            continue;
        const QAction *action = m_commands->perform(row.command, this, [this, row] { m_tools->choose(row.tool); });
        // Choosing the present tool again changes nothing, but has unchecked its action.
        connect(action, &QAction::triggered, this, &ToolCommands::showChoice);
    }
    showChoice();
}

void ToolCommands::showChoice()
{
    for (const ToolCommand &row : toolCommands)
        m_commands->action(row.command)->setChecked(row.tool == m_tools->tool());
    m_commands->action(Command::KeepTool)->setChecked(m_tools->isKept());
    m_commands->action(Command::KeepTool)->setEnabled(m_tools->tool() != Tool::Select);
}

} // namespace board
