#pragma once

#include <QtCore/QObject>

class QWidget;

namespace board {

class Commands;
class FinderPopup;
class KeysDialog;
class Workspace;

/// Performs the commands that show the keys, find anything, and switch letters off.
class HelpCommands : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this; popup and dialog belong to `window`.
    HelpCommands(const Workspace *workspace, Commands *commands, QWidget *window);

Q_SIGNALS:
    /// The user has found a kind of shape and wants to draw it.
    void kindChosen(const QString &kindId);

private:
    void showKeys();

    const Workspace *m_workspace;
    Commands *m_commands;
    QWidget *m_window;
    FinderPopup *m_finder;
};

} // namespace board
