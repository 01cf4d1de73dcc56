#pragma once

#include "core/commandlist.h"

class QMenu;

namespace board {

class Commands;
class Workspace;

/// An entry of a menu: a command, a menu of further entries, or a separator.
struct MenuEntry
{
    MenuEntry() = default;
    MenuEntry(Command which)
        : command(which)
    {
    }
    MenuEntry(const char *title, const QVector<MenuEntry> &within)
        : titleKey(title)
        , entries(within)
    {
    }

    std::optional<Command> command;
    const char *titleKey = nullptr; ///< localisation key; of a menu
    QVector<MenuEntry> entries;
};
using MenuPlan = QVector<MenuEntry>;

/// The menus of the window, which have every command.
MenuPlan mainMenuPlan();

/// The place of objects above and below others.
MenuPlan orderMenuPlan();
/// Menus of what is under the pointer.
MenuPlan objectMenuPlan();
MenuPlan pageMenuPlan();
MenuPlan thumbnailMenuPlan();

/// Appends the entries. Commands that nobody performs are not shown.
void fillMenu(QMenu *menu, const MenuPlan &plan, const Commands &commands, const Workspace &workspace);

} // namespace board
