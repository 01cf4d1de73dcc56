#pragma once

#include "core/commandlist.h"

#include <QtCore/QObject>

#include <array>
#include <functional>

class QAction;
class QActionGroup;
class QWidget;

namespace board {

class Workspace;

/// The actions of all commands, with their present keys. An action belongs to no menu by itself; its keys act in
/// the whole window. Commands that nobody performs are neither visible nor enabled.
class Commands : public QObject
{
    Q_OBJECT

public:
    /// Reads the user's keys from the settings.
    Commands(const Workspace *workspace, QWidget *window);

    QAction *action(Command command) const { return m_actions[int(command)]; }
    /// Makes the command available: from now on `work` is done when it is triggered, as long as `receiver` lives.
    QAction *perform(Command command, const QObject *receiver, const std::function<void()> &work);
    /// Makes a command available whose action is listened to elsewhere.
    QAction *perform(Command command);
    bool isPerformed(Command command) const;
    /// Available ones, in the order of the list.
    QVector<Command> performed() const;
    /// The command's lasting name in the user's language, without a mark for Alt.
    QString name(Command command) const;

    /// While blocked, commands that change the board are off, with their keys: a lesson is shown.
    void setEditingBlocked(bool blocked);
    bool isEditingBlocked() const;

    /// @name Keys, remembered in the settings
    /// @{
    QList<QKeySequence> keys(Command command) const { return m_keys[int(command)]; }
    /// Gives a command these keys alone and takes them from those that had them.
    void setKeys(Command command, const QList<QKeySequence> &keys);
    /// Back to its default keys, which are taken from those that have got them since.
    void resetKeys(Command command);
    void resetAllKeys();
    /// A command other than `command` that has the key already.
    std::optional<Command> otherWithKey(Command command, const QKeySequence &key) const;
    /// Whether keys that type a character act.
    bool lettersAct() const { return m_lettersAct; }
    void setLettersAct(bool act);
    /// @}

Q_SIGNALS:
    /// Of at least one command, or lettersAct().
    void keysChanged();

protected:
    /// Keeps letters for whoever types.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void make(Command command);
    void store(Command command, const QList<QKeySequence> &keys);
    void give(Command command);
    void giveAll();

    const Workspace *m_workspace;
    QWidget *m_window;
    QActionGroup *m_editing;
    std::array<QAction *, commandCount> m_actions{};
    std::array<QList<QKeySequence>, commandCount> m_keys;
    bool m_lettersAct = true;
};

} // namespace board
