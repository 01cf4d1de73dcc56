#pragma once

#include <QtCore/QObject>

namespace board {

class Commands;
class ToolChoice;

/// Commands that choose a tool: available as soon as the tool is offered, checked while it is in use.
class ToolCommands : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this.
    ToolCommands(Commands *commands, ToolChoice *tools, QObject *parent);

private:
    void offer();
    void showChoice();

    Commands *m_commands;
    ToolChoice *m_tools;
};

} // namespace board
