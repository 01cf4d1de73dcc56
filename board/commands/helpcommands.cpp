#include "commands/helpcommands.h"

#include "commands/finderpopup.h"
#include "commands/keysdialog.h"
#include "core/commands.h"

#include <QtWidgets/QAction>

namespace board {

HelpCommands::HelpCommands(const Workspace *workspace, Commands *commands, QWidget *window)
    : QObject(window)
    , m_workspace(workspace)
    , m_commands(commands)
    , m_window(window)
    , m_finder(new FinderPopup(workspace, commands, window))
{
    connect(m_finder, &FinderPopup::kindChosen, this, &HelpCommands::kindChosen);
    commands->perform(Command::ShowKeys, this, [this] { showKeys(); });
    commands->perform(Command::FindCommand, this, [this] { m_finder->open(); });
    QAction *letters = commands->perform(Command::LetterKeys);
    connect(letters, &QAction::triggered, commands, &Commands::setLettersAct);
    const auto show = [=] { letters->setChecked(commands->lettersAct()); };
    connect(commands, &Commands::keysChanged, this, show);
    show();
}

/// Made anew each time: other commands may have become available.
void HelpCommands::showKeys()
{
    auto *open = m_window->findChild<KeysDialog *>();
    auto *dialog = open ? open : new KeysDialog(m_workspace, m_commands, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

} // namespace board
