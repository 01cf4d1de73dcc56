#include "panels/historypanel.h"

#include "core/workspace.h"
#include "look/theme.h"

#include <framework/cundoredo.h>

#include <QtWidgets/QLabel>
#include <QtWidgets/QUndoStack>
#include <QtWidgets/QUndoView>
#include <QtWidgets/QVBoxLayout>

namespace board {

namespace {

/// Qt tells screen readers of each new row as if it had the focus.
class QuietUndoView : public QUndoView
{
public:
    using QUndoView::QUndoView;

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override
    {
        if (hasFocus())
            QUndoView::currentChanged(current, previous);
        else
            QAbstractItemView::currentChanged(current, previous);
    }
};

} // namespace

HistoryPanel::HistoryPanel(const Workspace *workspace, QWidget *parent)
    : QWidget(parent)
    , m_view(new QuietUndoView(CUndoRedo::GetInstance()->stack(), this))
{
    m_view->setItemDelegate(new pagehost::LocalizedDelegate(&workspace->localizer(), m_view));
    m_view->setEmptyLabel(workspace->text("IDS_BOARD_HISTORY_START"));
    m_view->setAccessibleName(workspace->text("IDS_BOARD_HISTORY"));
    m_view->setFocusPolicy(Qt::TabFocus);
    auto *nothing = new QLabel(workspace->text("IDS_BOARD_HISTORY_EMPTY"), this);
    nothing->setForegroundRole(QPalette::PlaceholderText);
    nothing->setWordWrap(true);
    nothing->setContentsMargins(mediumGap, mediumGap, mediumGap, mediumGap);
    const QUndoStack *stack = m_view->stack();
    const auto show = [this, nothing, stack] {
        nothing->setVisible(stack->count() == 0);
        m_view->setVisible(stack->count() > 0);
    };
    connect(stack, &QUndoStack::indexChanged, this, show);
    show();
    auto *column = new QVBoxLayout(this);
    column->addWidget(nothing, 0, Qt::AlignTop);
    column->setContentsMargins(mediumGap, 0, mediumGap, mediumGap);
    column->addWidget(m_view);
}

} // namespace board
