#pragma once

#include <QtCore/QAbstractListModel>
#include <QtCore/QStringList>

class QUndoStack;

namespace board {

class Workspace;

/// The undo steps as rows of words, after a first row for the beginning. Rows are those of QUndoStack::index().
class HistoryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Both must outlive this.
    HistoryModel(const Workspace *workspace, const QUndoStack *stack, QObject *parent);

    /// Reads the stack anew. Rows that are the same stay what they are.
    void follow();
    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    const Workspace *m_workspace;
    const QUndoStack *m_stack;
    QStringList m_rows;
};

} // namespace board
