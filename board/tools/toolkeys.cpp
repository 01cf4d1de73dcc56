#include "tools/toolkeys.h"

#include "core/commands.h"
#include "core/toolchoice.h"
#include "tools/toolsettings.h"

#include <QtWidgets/QAction>

#include <iterator>

namespace board {

namespace {

/// In the order of the colours on offer.
constexpr Command colorCommands[] = {Command::Color1, Command::Color2, Command::Color3,
                                     Command::Color4, Command::Color5, Command::Color6};

} // namespace

ToolKeys::ToolKeys(Commands *commands, const ToolChoice *choice, ToolSettings *settings, QObject *parent)
    : QObject(parent)
    , m_commands(commands)
    , m_choice(choice)
    , m_settings(settings)
{
    for (int i = 0; i < int(std::size(colorCommands)); ++i)
        commands->perform(colorCommands[i], this, [this, i] {
            m_settings->setColor(m_choice->tool(), m_settings->colors(m_choice->tool()).value(i));
        });
    commands->perform(Command::Wider, this, [this] { m_settings->stepWidth(m_choice->tool(), 1); });
    commands->perform(Command::Narrower, this, [this] { m_settings->stepWidth(m_choice->tool(), -1); });
    connect(choice, &ToolChoice::changed, this, &ToolKeys::enable);
    enable();
}

void ToolKeys::enable()
{
    const int colors = m_settings->colors(m_choice->tool()).size();
    for (int i = 0; i < int(std::size(colorCommands)); ++i)
        m_commands->action(colorCommands[i])->setEnabled(i < colors);
    for (const Command command : {Command::Wider, Command::Narrower})
        m_commands->action(command)->setEnabled(m_settings->widths(m_choice->tool()).size() > 1);
}

} // namespace board
