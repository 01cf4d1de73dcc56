#pragma once

#include "core/commandlist.h"

#include <QtWidgets/QDialog>

class QCheckBox;
class QKeySequenceEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace board {

class Commands;
class Workspace;

/// All commands with their keys, which the user can change.
class KeysDialog : public QDialog
{
    Q_OBJECT

public:
    KeysDialog(const Workspace *workspace, Commands *commands, QWidget *window);

    QLineEdit *search() const { return m_search; }
    QTreeWidget *list() const { return m_list; }
    QKeySequenceEdit *newKey() const { return m_newKey; }
    /// Who has the new key already; empty when nobody.
    QLabel *conflict() const { return m_conflict; }
    QCheckBox *letters() const { return m_letters; }
    void choose(Command command);

private:
    void makeList();
    void layOut();
    void connectParts();
    QPushButton *addButton(const char *textKey, void (KeysDialog::*work)());
    void filter();
    void showKeys();
    void showConflict();
    std::optional<Command> chosen() const;
    QKeySequence key() const;
    void useKey();
    void addKey();
    void removeKeys();
    void reset();
    void resetAll();

    const Workspace *m_workspace;
    Commands *m_commands;
    QLineEdit *m_search;
    QTreeWidget *m_list;
    QKeySequenceEdit *m_newKey;
    QLabel *m_conflict;
    QCheckBox *m_letters;
    QVector<QPushButton *> m_buttons;
    QVector<QTreeWidgetItem *> m_rows; ///< of commands, under their groups
};

} // namespace board
