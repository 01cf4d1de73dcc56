#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtGui/QPixmap>

#include <functional>

class QWidget;

namespace board {

class Workspace;

/// Something that the user decides before it happens.
struct Question
{
    struct Choice
    {
        QString text;
        bool destroys = false; ///< something that is nowhere else then
        std::function<void()> work;
    };

    QString text;
    QString explanation;
    /// The first is what Return takes unless it destroys something. "Cancel" comes by itself and does nothing.
    QVector<Choice> choices;
    QPixmap picture; ///< null for the usual sign
};

/// Asks without blocking: the answer comes later.
void ask(const Workspace &workspace, QWidget *window, const Question &question);

} // namespace board
