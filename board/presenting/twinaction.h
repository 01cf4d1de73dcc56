#pragma once

class QAction;
class QObject;

namespace board {

/// An action with the texts and keys of a command's, for a window in which it does something else. Belongs to
/// `parent`.
QAction *makeTwin(const QAction &original, QObject *parent);

} // namespace board
