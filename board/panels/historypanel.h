#pragma once

#include <QtWidgets/QWidget>

namespace board {

class HistoryList;
class Workspace;

/// The undo steps by name; a click goes back or forth to that moment.
class HistoryPanel : public QWidget
{
    Q_OBJECT

public:
    explicit HistoryPanel(const Workspace *workspace, QWidget *parent = nullptr);

    HistoryList *list() const { return m_list; }

private:
    HistoryList *m_list;
};

} // namespace board
