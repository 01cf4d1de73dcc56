#pragma once

#include <QtCore/QString>

class QWidget;

namespace board {
class Workspace;
} // namespace board

namespace boardtest {

/// Gives every text of the board, its host and its shapes another one that no program could have by chance: in
/// letters that run to the left, and 40 % longer.
void lengthenTexts(board::Workspace &workspace);

/// Texts of the part of the window and of its menus that no translation has, one a line.
QString untranslatedTexts(const QWidget &part);

/// Visible texts that are cut off, and controls that overlap or stand outside of the part, one a line.
QString crampedTexts(const QWidget &part);

} // namespace boardtest
