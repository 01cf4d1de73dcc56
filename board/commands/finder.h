#pragma once

#include "core/commandlist.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

namespace board {

class Commands;
class Workspace;

/// A command or a kind of shape that can be found by its words.
struct Findable
{
    QString name;  ///< in the user's language
    QString group; ///< title, in the user's language
    QString words; ///< names and further words, in all languages of the board
    std::optional<Command> command;
    QString kindId; ///< of shapes
};

/// Commands that somebody performs, in the order of the list; then the kinds of shape.
QVector<Findable> findables(const Workspace &workspace, const Commands &commands);

/// Those that have every word of `text` somewhere, without regard to case. Best ones first by nameRank(), equal
/// ones in their order.
QVector<Findable> findMatches(const QVector<Findable> &all, const QString &text);

} // namespace board
