#pragma once

#include <QtCore/QObject>

namespace board {

class Commands;
class Workspace;

/// Performs the commands that draw the most usual shapes, as far as a plug-in has them.
class ShapeCommands : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    ShapeCommands(const Workspace *workspace, Commands *commands, QObject *parent);

Q_SIGNALS:
    /// The user wants to draw a shape.
    void kindChosen(const QString &kindId);

private:
    void perform();

    const Workspace *m_workspace;
    Commands *m_commands;
};

} // namespace board
