#pragma once

class QAction;

namespace board {

/// Gives the action a tool tip of its name and its first shortcut.
void describe(QAction *action);

} // namespace board
