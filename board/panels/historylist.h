#pragma once

#include <QtWidgets/QListView>

class QUndoStack;

namespace board {

class HistoryModel;
class Workspace;

/// The rows of the history: the present one is the step that was done last, and choosing another goes there.
class HistoryList : public QListView
{
    Q_OBJECT

public:
    /// Both must outlive this.
    HistoryList(const Workspace *workspace, QUndoStack *stack, QWidget *parent);

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    void follow();

    QUndoStack *m_stack;
    HistoryModel *m_model;
    bool m_isFollowing = false;
};

} // namespace board
