#pragma once

#include <QtCore/QObject>

namespace board {

class Commands;
class PageView;

/// The command that lets fingers draw even where there is a pen, as the user left it.
class TouchActions : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this.
    TouchActions(Commands *commands, PageView *view, QObject *parent);
};

} // namespace board
