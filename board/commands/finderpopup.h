#pragma once

#include "commands/finder.h"

#include <QtWidgets/QFrame>

class QLabel;
class QLineEdit;
class QTreeWidget;

namespace board {

class Commands;
class Workspace;

/// A field to type words into and the commands and shapes that they find. The return key or a click runs the chosen
/// one.
class FinderPopup : public QFrame
{
    Q_OBJECT

public:
    FinderPopup(const Workspace *workspace, Commands *commands, QWidget *window);

    /// At the top of the window, with everything that there is now.
    void open();
    QLineEdit *field() const { return m_field; }
    QTreeWidget *list() const { return m_list; }

Q_SIGNALS:
    /// The user wants to draw a shape.
    void kindChosen(const QString &kindId);

protected:
    /// Brings the keys that choose from the field to the list.
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void showFound();
    void addRow(const Findable &findable);
    void run();

    const Workspace *m_workspace;
    Commands *m_commands;
    QLineEdit *m_field;
    QTreeWidget *m_list;
    QLabel *m_nothing;
    QVector<Findable> m_all;
    QVector<Findable> m_found;
};

} // namespace board
