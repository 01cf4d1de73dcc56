#pragma once

#include <pagehost/localizer.h>

#include <QtWidgets/QWidget>

class QUndoView;

namespace board {

class Workspace;

/// The undo steps by name; a click goes back or forth to that moment.
class HistoryPanel : public QWidget
{
    Q_OBJECT

public:
    explicit HistoryPanel(const Workspace *workspace, QWidget *parent = nullptr);

    QUndoView *view() const { return m_view; }

private:
    QUndoView *m_view;
};

} // namespace board
