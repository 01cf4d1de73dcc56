#pragma once

#include <QtCore/QString>
#include <QtGui/QKeySequence>

class QAction;

namespace board {

/// The platform's keys for a standard action and ours beside them: without a desktop theme some standard actions
/// have no keys at all.
QList<QKeySequence> keysFor(QKeySequence::StandardKey key, const QList<QKeySequence> &ours);

/// Gives the action a tool tip of its name and its first shortcut.
void describe(QAction *action);

} // namespace board
