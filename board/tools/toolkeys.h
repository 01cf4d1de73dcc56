#pragma once

#include <QtCore/QObject>

namespace board {

class Commands;
class ToolChoice;
class ToolSettings;

/// Performs the commands that set the colour and the width of the tool in use; off for a tool without them.
class ToolKeys : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    ToolKeys(Commands *commands, const ToolChoice *choice, ToolSettings *settings, QObject *parent);

private:
    void enable();

    Commands *m_commands;
    const ToolChoice *m_choice;
    ToolSettings *m_settings;
};

} // namespace board
