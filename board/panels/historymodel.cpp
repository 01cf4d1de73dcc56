#include "panels/historymodel.h"

#include "core/workspace.h"

#include <QtWidgets/QUndoStack>

namespace board {

HistoryModel::HistoryModel(const Workspace *workspace, const QUndoStack *stack, QObject *parent)
    : QAbstractListModel(parent)
    , m_workspace(workspace)
    , m_stack(stack)
{
    follow();
}

void HistoryModel::follow()
{
    QStringList rows{m_workspace->text("IDS_BOARD_HISTORY_START")};
    for (int step = 0; step < m_stack->count(); ++step)
        rows.append(m_workspace->text(m_stack->text(step)));
    if (rows == m_rows)
        return;
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

int HistoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

QVariant HistoryModel::data(const QModelIndex &index, int role) const
{
    return role == Qt::DisplayRole ? m_rows.value(index.row()) : QVariant();
}

} // namespace board
