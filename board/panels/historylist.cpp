#include "panels/historylist.h"

#include "look/sizes.h"
#include "panels/historymodel.h"
#include "panels/rowdelegate.h"

#include <QtCore/QScopedValueRollback>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QUndoStack>

namespace board {

HistoryList::HistoryList(const Workspace *workspace, QUndoStack *stack, QWidget *parent)
    : QListView(parent)
    , m_stack(stack)
    , m_model(new HistoryModel(workspace, stack, this))
{
    setModel(m_model);
    setItemDelegate(new RowDelegate(this));
    connect(stack, &QUndoStack::indexChanged, this, &HistoryList::follow);
    followSizes(this, [this] { doItemsLayout(); });
    follow();
}

void HistoryList::follow()
{
    const QScopedValueRollback following(m_isFollowing, true);
    m_model->follow();
    const QModelIndex present = m_model->index(m_stack->index(), 0);
    if (hasFocus())
        return setCurrentIndex(present);
    // Qt would tell screen readers of the row as if it had the focus.
    const QSignalBlocker quiet(selectionModel());
    setCurrentIndex(present);
    scrollTo(present);
    viewport()->update();
}

void HistoryList::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    if (!m_isFollowing && current.isValid())
        m_stack->setIndex(current.row());
}

} // namespace board
