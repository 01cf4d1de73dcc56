#pragma once

#include <QtCore/QString>

namespace board {

class Workspace;

/// A text and the words that stand for it besides, in all languages of the board.
QString searchWords(const Workspace &workspace, const QString &textKey);

/// Whether every word of a sought text is somewhere in `words`, without regard to case.
bool hasAllWords(const QString &words, const QString &sought);

/// How well a name fits a sought text, without regard to case; the lower the better: the text itself, then names
/// that begin with it, names with a word that begins with it, names with it, and all others.
int nameRank(const QString &name, const QString &sought);

} // namespace board
