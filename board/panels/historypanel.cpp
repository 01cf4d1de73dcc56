#include "panels/historypanel.h"

#include "core/workspace.h"
#include "look/theme.h"
#include "panels/historylist.h"

#include <framework/cundoredo.h>

#include <QtWidgets/QLabel>
#include <QtWidgets/QUndoStack>
#include <QtWidgets/QVBoxLayout>

namespace board {

HistoryPanel::HistoryPanel(const Workspace *workspace, QWidget *parent)
    : QWidget(parent)
    , m_list(new HistoryList(workspace, CUndoRedo::GetInstance()->stack(), this))
{
    m_list->setAccessibleName(workspace->text("IDS_BOARD_HISTORY"));
    m_list->setFocusPolicy(Qt::TabFocus);
    auto *nothing = new QLabel(workspace->text("IDS_BOARD_HISTORY_EMPTY"), this);
    nothing->setForegroundRole(QPalette::PlaceholderText);
    nothing->setWordWrap(true);
    nothing->setContentsMargins(mediumGap, mediumGap, mediumGap, mediumGap);
    const QUndoStack *stack = CUndoRedo::GetInstance()->stack();
    const auto show = [this, nothing, stack] {
        nothing->setVisible(stack->count() == 0);
        m_list->setVisible(stack->count() > 0);
    };
    connect(stack, &QUndoStack::indexChanged, this, show);
    show();
    auto *column = new QVBoxLayout(this);
    column->addWidget(nothing, 0, Qt::AlignTop);
    column->setContentsMargins(mediumGap, 0, mediumGap, mediumGap);
    column->addWidget(m_list);
}

} // namespace board
