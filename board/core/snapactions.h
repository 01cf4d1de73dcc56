#pragma once

#include <QtCore/QObject>

namespace board {

class Commands;
class PageView;

/// The commands that switch the grid and snapping, for every page that the view shows.
class SnapActions : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this. As the user left them.
    SnapActions(Commands *commands, PageView *view, QObject *parent);

private:
    void apply();

    Commands *m_commands;
    PageView *m_view;
};

} // namespace board
